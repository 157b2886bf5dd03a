// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_REQUEST_PARSER_H_
#define WT_HTTP_REQUEST_PARSER_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Wt
{
namespace Net
{

/// The first line and the fields of a request, as they came.
struct ParsedHead {
  std::string method;
  std::string target;
  bool http11 = false;
  bool keepAlive = false;
  bool chunked = false;
  bool unknownCoding = false; ///< the body is in a form other than plain or chunked
  bool hasContentLength = false;
  std::uint64_t contentLength = 0;
  std::vector<std::pair<std::string, std::string>> headers; ///< names in lower case

  /// The first field of that lower-case name, or an empty text.
  const std::string &header(std::string_view name) const;
  std::size_t count(std::string_view name) const;
};

/// Takes one request apart as its bytes arrive. Beast does the parsing; this keeps it out of sight and adds
/// limits.
class RequestParser
{
public:
  static constexpr std::size_t maximumHeadSize = 16 * 1024;
  static constexpr std::size_t maximumFields = 100;

  enum class State { Head, Body, Done, Failed };

  RequestParser();
  ~RequestParser();

  /**
   * Parses what it can and returns the number of bytes used; the others must be given again with more behind
   * them. It stops at the end of the head, so that the caller may decide about the body, and at the end of
   * the request.
   */
  std::size_t parse(std::string_view bytes);

  State state() const { return state_; }
  const ParsedHead &head() const;
  ParsedHead takeHead();

  /// The status to answer a request with that could not be parsed.
  int failureStatus() const { return failureStatus_; }

  /// Where body bytes go; without it they are dropped.
  void setBodySink(std::function<void(std::string_view)> sink);

private:
  class Parser;

  std::unique_ptr<Parser> parser_;
  State state_ = State::Head;
  int failureStatus_ = 400;

  void fail(int status);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_REQUEST_PARSER_H_
