// SPDX-License-Identifier: MIT
#include "session/RequestHead.h"

#include <Wt/WEnvironment>
#include <algorithm>
#include <stdexcept>

namespace Wt
{

namespace
{

int hexadecimal(char c)
{
  if (c >= '0' && c <= '9')
    return c - '0';
  c = static_cast<char>(c | 32);
  return c >= 'a' && c <= 'f' ? c - 'a' + 10 : -1;
}

/// Text of a query: "%41" and "+" are decoded, what is malformed stays.
std::string decoded(const std::string &text)
{
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+') {
      result += ' ';
    } else if (text[i] == '%' && i + 2 < text.size() && hexadecimal(text[i + 1]) >= 0 &&
               hexadecimal(text[i + 2]) >= 0) {
      result += static_cast<char>(hexadecimal(text[i + 1]) * 16 + hexadecimal(text[i + 2]));
      i += 2;
    } else {
      result += text[i];
    }
  }
  return result;
}

std::string lower(std::string text)
{
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
  return text;
}

} // namespace

WEnvironment::WEnvironment() = default;

WEnvironment::~WEnvironment() = default;

const std::string WEnvironment::headerValue(const std::string &name) const
{
  const auto found = headers_.find(lower(name));
  return found == headers_.end() ? std::string() : found->second;
}

const std::string *WEnvironment::getParameter(const std::string &name) const
{
  const auto found = parameters_.find(name);
  return found == parameters_.end() || found->second.empty() ? nullptr : &found->second.front();
}

const std::vector<std::string> &WEnvironment::getParameterValues(const std::string &name) const
{
  static const std::vector<std::string> none;
  const auto found = parameters_.find(name);
  return found == parameters_.end() ? none : found->second;
}

const std::string WEnvironment::getCookie(const std::string &name) const
{
  if (const std::string *value = getCookieValue(name))
    return *value;
  throw std::runtime_error("no cookie '" + name + "'");
}

const std::string *WEnvironment::getCookieValue(const std::string &name) const
{
  const auto found = cookies_.find(name);
  return found == cookies_.end() ? nullptr : &found->second;
}

void WEnvironment::readHead(const Engine::RequestHead &head)
{
  hostName_ = head.host;
  urlScheme_ = head.scheme;
  clientAddress_ = head.clientAddress;
  for (const auto &header : head.headers)
    headers_.emplace(header.first, header.second);
  userAgent_ = head.header("user-agent");
  referer_ = head.header("referer");
  readCookies(head.header("cookie"));
}

void WEnvironment::readQuery(const std::string &query)
{
  for (std::size_t from = 0; from < query.size();) {
    const std::size_t to = std::min(query.find('&', from), query.size());
    const std::string pair = query.substr(from, to - from);
    const std::size_t equals = std::min(pair.find('='), pair.size());
    if (!pair.empty())
      parameters_[decoded(pair.substr(0, equals))].push_back(
          equals < pair.size() ? decoded(pair.substr(equals + 1)) : std::string());
    from = to + 1;
  }
}

void WEnvironment::readCookies(const std::string &header)
{
  for (std::size_t from = 0; from < header.size();) {
    from = header.find_first_not_of("; ", from);
    if (from == header.npos)
      return;
    const std::size_t to = std::min(header.find(';', from), header.size());
    const std::size_t equals = header.find('=', from);
    if (equals < to)
      cookies_.emplace(header.substr(from, equals - from), header.substr(equals + 1, to - equals - 1));
    from = to;
  }
}

} // namespace Wt
