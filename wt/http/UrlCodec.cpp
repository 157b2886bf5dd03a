// SPDX-License-Identifier: MIT
#include "http/UrlCodec.h"

#include <algorithm>

namespace Wt
{
namespace Net
{

namespace
{

constexpr std::size_t kMaximumPairs = 100;

int hexValue(char c)
{
  if (c >= '0' && c <= '9')
    return c - '0';
  const char lower = static_cast<char>(c | 0x20);
  return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

bool isUnreserved(unsigned char c)
{
  const unsigned char lower = c | 0x20;
  return (c >= '0' && c <= '9') || (lower >= 'a' && lower <= 'z') || c == '-' || c == '.' || c == '_' ||
         c == '~';
}

} // namespace

bool percentDecode(std::string_view text, bool plusIsBlank, std::string &out)
{
  out.clear();
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '+' && plusIsBlank) {
      out += ' ';
    } else if (text[i] != '%') {
      out += text[i];
    } else {
      const int high = i + 2 < text.size() ? hexValue(text[i + 1]) : -1;
      const int low = high < 0 ? -1 : hexValue(text[i + 2]);
      if (low < 0)
        return false;
      out += static_cast<char>(high * 16 + low);
      i += 2;
    }
  }
  return true;
}

std::string percentEncode(std::string_view text)
{
  static const char digits[] = "0123456789ABCDEF";
  std::string out;
  for (const char character : text) {
    const unsigned char c = static_cast<unsigned char>(character);
    if (isUnreserved(c)) {
      out += character;
    } else {
      out += '%';
      out += digits[c >> 4];
      out += digits[c & 15];
    }
  }
  return out;
}

std::multimap<std::string, std::string> parseQuery(std::string_view query)
{
  std::multimap<std::string, std::string> pairs;
  while (!query.empty() && pairs.size() < kMaximumPairs) {
    const std::string_view pair = query.substr(0, query.find('&'));
    query.remove_prefix(std::min(query.size(), pair.size() + 1));
    const std::size_t equals = std::min(pair.find('='), pair.size());
    std::string name;
    std::string value;
    if (!pair.empty() && percentDecode(pair.substr(0, equals), true, name) &&
        percentDecode(pair.substr(std::min(pair.size(), equals + 1)), true, value))
      pairs.emplace(std::move(name), std::move(value));
  }
  return pairs;
}

} // namespace Net
} // namespace Wt
