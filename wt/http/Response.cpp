// SPDX-License-Identifier: MIT
#include "http/Response.h"

#include <boost/beast/http/status.hpp>

namespace Wt
{
namespace Net
{

std::string_view reasonPhrase(int status)
{
  const auto known = boost::beast::http::int_to_status(static_cast<unsigned>(status));
  const auto text = boost::beast::http::obsolete_reason(known);
  return std::string_view(text.data(), text.size());
}

Response Response::plain(int status)
{
  Response response;
  response.status = status;
  response.add("Content-Type", "text/plain; charset=utf-8");
  response.add("Cache-Control", "no-store");
  response.body = std::to_string(status) + " ";
  response.body += reasonPhrase(status);
  response.body += "\n";
  return response;
}

} // namespace Net
} // namespace Wt
