// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_REQUEST_HEAD_H_
#define WT_SESSION_REQUEST_HEAD_H_

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{
namespace Engine
{

/// What is known of an HTTP request besides its body. Texts are as they came, but for the decoded parameters.
struct RequestHead {
  std::string method;
  std::string scheme;        ///< "http" or "https"
  std::string path;          ///< percent-decoded path
  std::string entryPoint;    ///< the entry point's path that the router chose
  std::string query;         ///< raw, without "?"
  std::string host;          ///< the Host header, with ":port" if the browser sent one
  std::string clientAddress; ///< the peer's address
  std::vector<std::pair<std::string, std::string>> headers; ///< names in lower case
  std::multimap<std::string, std::string> parameters;       ///< decoded query parameters

  /// The first header of that lower-case name, or an empty text.
  std::string header(const std::string &name) const
  {
    for (const auto &h : headers)
      if (h.first == name)
        return h.second;
    return std::string();
  }

  /// The first parameter of that name, or null.
  const std::string *parameter(const std::string &name) const
  {
    const auto found = parameters.find(name);
    return found == parameters.end() ? nullptr : &found->second;
  }
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_REQUEST_HEAD_H_
