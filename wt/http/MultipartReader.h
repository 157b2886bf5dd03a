// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_MULTIPART_READER_H_
#define WT_HTTP_MULTIPART_READER_H_

#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

/// Takes a multipart/form-data body apart as it streams by, holding no more than a boundary's length of it.
class MultipartReader
{
public:
  struct Part {
    std::string fieldName;
    std::string fileName; ///< as the browser gave it, without any folders before it
    bool isFile = false;
    std::string contentType;
  };

  /// Told of the parts. Each returns false to give up, for lack of disk space for example.
  class Handler
  {
  public:
    virtual ~Handler() = default;
    virtual bool partBegins(const Part &part) = 0;
    virtual bool partBytes(std::string_view bytes) = 0;
    virtual bool partEnds() = 0;
  };

  /// The boundary that a Content-Type names, or an empty text if it is no multipart/form-data with one.
  static std::string boundaryOf(std::string_view contentType);

  MultipartReader(const std::string &boundary, Handler &handler);

  /// The next bytes of the body. False once the body is malformed or the handler has given up.
  bool feed(std::string_view bytes);
  /// True when the closing boundary has been seen.
  bool complete() const { return state_ == State::Epilogue; }

private:
  enum class State { AfterBoundary, Headers, Content, Epilogue, Failed };

  static constexpr std::size_t longestHeaders = 8 * 1024;
  static constexpr int mostParts = 100;

  std::string delimiter_; ///< line break, two dashes, boundary
  Handler &handler_;
  State state_ = State::Content;
  bool inPart_ = false;
  int parts_ = 0;
  std::string held_;

  bool step();
  bool afterBoundary();
  bool headers();
  bool content();
  bool emit(std::string_view bytes);
  bool fail();
  static Part describe(std::string_view headers);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_MULTIPART_READER_H_
