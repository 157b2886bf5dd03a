// SPDX-License-Identifier: MIT
#include "http/RequestParser.h"

#include <algorithm>
#include <boost/asio/buffer.hpp>
#include <boost/beast/core/string.hpp>
#include <boost/beast/http/basic_parser.hpp>
#include <boost/beast/http/error.hpp>
#include <limits>

namespace Wt
{
namespace Net
{

namespace
{

namespace beast = boost::beast;
namespace http = boost::beast::http;

std::string lowerCase(beast::string_view text)
{
  std::string lower(text.data(), text.size());
  for (char &c : lower)
    if (c >= 'A' && c <= 'Z')
      c = static_cast<char>(c | 0x20);
  return lower;
}

} // namespace

const std::string &ParsedHead::header(std::string_view name) const
{
  static const std::string none;
  for (const auto &field : headers)
    if (field.first == name)
      return field.second;
  return none;
}

std::size_t ParsedHead::count(std::string_view name) const
{
  return static_cast<std::size_t>(std::count_if(headers.begin(), headers.end(),
                                                [name](const auto &field) { return field.first == name; }));
}

class RequestParser::Parser : public http::basic_parser<true>
{
public:
  ParsedHead head;
  std::function<void(std::string_view)> sink;

  void on_request_impl(http::verb, beast::string_view method, beast::string_view target, int version,
                       beast::error_code &) override
  {
    head.method.assign(method.data(), method.size());
    head.target.assign(target.data(), target.size());
    head.http11 = version >= 11;
  }

  void on_field_impl(http::field, beast::string_view name, beast::string_view value,
                     beast::error_code &ec) override
  {
    if (is_header_done())
      return;
    if (head.headers.size() >= maximumFields)
      ec = http::error::header_limit;
    else
      head.headers.emplace_back(lowerCase(name), std::string(value.data(), value.size()));
  }

  void on_header_impl(beast::error_code &) override
  {
    head.keepAlive = keep_alive();
    head.chunked = chunked();
    // Whoever knows a coding that this server does not would see other requests in what follows.
    head.unknownCoding =
        head.count("transfer-encoding") > 0 &&
        (head.count("transfer-encoding") > 1 || !beast::iequals(head.header("transfer-encoding"), "chunked"));
    if (const auto length = content_length()) {
      head.hasContentLength = true;
      head.contentLength = *length;
    }
  }

  std::size_t on_body_impl(beast::string_view body, beast::error_code &) override
  {
    if (sink)
      sink(std::string_view(body.data(), body.size()));
    return body.size();
  }

  std::size_t on_chunk_body_impl(std::uint64_t, beast::string_view body, beast::error_code &ec) override
  {
    return on_body_impl(body, ec);
  }

  void on_response_impl(int, beast::string_view, int, beast::error_code &) override {}
  void on_body_init_impl(const boost::optional<std::uint64_t> &, beast::error_code &) override {}
  void on_chunk_header_impl(std::uint64_t, beast::string_view, beast::error_code &) override {}
  void on_finish_impl(beast::error_code &) override {}
};

RequestParser::RequestParser() : parser_(std::make_unique<Parser>())
{
  parser_->header_limit(static_cast<std::uint32_t>(maximumHeadSize));
  parser_->body_limit(std::numeric_limits<std::uint64_t>::max());
  parser_->eager(false);
}

RequestParser::~RequestParser() = default;

const ParsedHead &RequestParser::head() const
{
  return parser_->head;
}

ParsedHead RequestParser::takeHead()
{
  return std::move(parser_->head);
}

void RequestParser::setBodySink(std::function<void(std::string_view)> sink)
{
  parser_->sink = std::move(sink);
}

void RequestParser::fail(int status)
{
  state_ = State::Failed;
  failureStatus_ = status;
}

std::size_t RequestParser::parse(std::string_view bytes)
{
  std::size_t used = 0;
  while (state_ == State::Head || state_ == State::Body) {
    beast::error_code ec;
    const std::string_view rest = bytes.substr(used);
    if (rest.empty())
      break;
    used += parser_->put(boost::asio::buffer(rest.data(), rest.size()), ec);
    if (ec == http::error::need_more) {
      if (bytes.size() - used >= maximumHeadSize)
        fail(state_ == State::Head ? 431 : 400);
      break;
    }
    if (ec) {
      fail(ec == http::error::header_limit ? 431 : ec == http::error::bad_version ? 505 : 400);
      break;
    }
    if (parser_->is_done())
      state_ = State::Done;
    else if (state_ == State::Head && parser_->is_header_done()) {
      state_ = State::Body;
      break;
    }
  }
  return used;
}

} // namespace Net
} // namespace Wt
