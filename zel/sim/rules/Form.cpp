// SPDX-License-Identifier: MIT
#include "rules/Form.h"

#include <algorithm>
#include <arpa/inet.h>
#include <cctype>
#include <netinet/in.h>

namespace zelsim
{

namespace
{

bool isAlphanumeric(char c)
{
  return std::isalnum(static_cast<unsigned char>(c)) != 0 && static_cast<unsigned char>(c) < 0x80;
}

bool isVisible(char c)
{
  return c > ' ' && c <= '~';
}

bool isPrintable(char c)
{
  return c >= ' ' && c <= '~';
}

bool isEid(const std::string &text)
{
  if (text.size() != 13 || text[6] != '-')
    return false;
  return std::all_of(text.begin(), text.begin() + 6, isAlphanumeric) &&
         std::all_of(text.begin() + 7, text.end(), isAlphanumeric);
}

bool isMac(const std::string &text)
{
  if (text.size() != 17 && text.size() != 23)
    return false;
  const char joint = text[2];
  if (joint != ':' && joint != '-')
    return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool good = i % 3 == 2 ? text[i] == joint : std::isxdigit(static_cast<unsigned char>(text[i])) != 0;
    if (!good)
      return false;
  }
  return true;
}

bool isAddress(const std::string &text, int family)
{
  in6_addr room{};
  return inet_pton(family, text.c_str(), &room) == 1;
}

bool isLabel(const std::string &label)
{
  return !label.empty() && label.size() <= 63 && label.front() != '-' && label.back() != '-' &&
         std::all_of(label.begin(), label.end(), [](char c) { return isAlphanumeric(c) || c == '-'; });
}

// Labels joined by dots, at least two; the last one begins with a letter.
bool isHostName(const std::string &text)
{
  std::size_t from = 0, dots = 0;
  for (std::size_t dot = text.find('.'); dot != std::string::npos; dot = text.find('.', from), ++dots) {
    if (!isLabel(text.substr(from, dot - from)))
      return false;
    from = dot + 1;
  }
  return dots > 0 && isLabel(text.substr(from)) && std::isalpha(static_cast<unsigned char>(text[from])) != 0;
}

bool isLink(const std::string &text)
{
  for (const std::string start : {"http://", "https://"})
    if (text.compare(0, start.size(), start) == 0)
      return text.size() > start.size() && std::all_of(text.begin(), text.end(), isPrintable);
  return false;
}

bool isIp(const std::string &text)
{
  return isAddress(text, AF_INET) || isAddress(text, AF_INET6);
}

} // namespace

bool hasForm(const std::string &text, Form form)
{
  switch (form) {
  case Form::Alphanumeric:
    return std::all_of(text.begin(), text.end(), isAlphanumeric);
  case Form::Visible:
    return std::all_of(text.begin(), text.end(), isVisible);
  case Form::EidOrEmpty:
    return text.empty() || isEid(text);
  case Form::MacOrEmpty:
    return text.empty() || isMac(text);
  case Form::IpV4:
    return isAddress(text, AF_INET);
  case Form::IpV6:
    return isAddress(text, AF_INET6);
  case Form::AddressOrEmpty:
    return text.empty() || isIp(text);
  case Form::HostOrEmpty:
    return text.empty() || isIp(text) || isHostName(text);
  case Form::LinkOrEmpty:
    return text.empty() || isLink(text);
  }
  return false;
}

} // namespace zelsim
