// SPDX-License-Identifier: MIT
#include "Base64.h"

#include <cstdint>

namespace zelwire
{

namespace
{

constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

int digitValue(char c)
{
  if (c >= 'A' && c <= 'Z')
    return c - 'A';
  if (c >= 'a' && c <= 'z')
    return c - 'a' + 26;
  if (c >= '0' && c <= '9')
    return c - '0' + 52;
  if (c == '+')
    return 62;
  return c == '/' ? 63 : -1;
}

} // namespace

std::string encodeBase64(const void *bytes, std::size_t length)
{
  const unsigned char *in = static_cast<const unsigned char *>(bytes);
  std::string out;
  out.reserve((length + 2) / 3 * 4);
  for (std::size_t i = 0; i < length; i += 3) {
    std::size_t left = length - i;
    std::uint32_t group = std::uint32_t{in[i]} << 16;
    if (left > 1)
      group |= std::uint32_t{in[i + 1]} << 8;
    if (left > 2)
      group |= in[i + 2];
    out += kDigits[group >> 18];
    out += kDigits[group >> 12 & 63];
    out += left > 1 ? kDigits[group >> 6 & 63] : '=';
    out += left > 2 ? kDigits[group & 63] : '=';
  }
  return out;
}

std::string decodeBase64(std::string_view text, bool &ok)
{
  ok = false;
  std::string out;
  if (text.size() % 4 != 0)
    return out;
  out.reserve(text.size() / 4 * 3);
  for (std::size_t i = 0; i < text.size(); i += 4) {
    bool last = i + 4 == text.size();
    std::size_t padding = !last || text[i + 3] != '=' ? 0 : text[i + 2] == '=' ? 2 : 1;
    std::uint32_t group = 0;
    for (std::size_t k = 0; k < 4; ++k) {
      int value = k < 4 - padding ? digitValue(text[i + k]) : 0;
      if (value < 0)
        return {};
      group = group << 6 | static_cast<std::uint32_t>(value);
    }
    // Bits that no byte takes must be zero: one block has one text.
    if ((padding == 2 && (group & 0xffff) != 0) || (padding == 1 && (group & 0xff) != 0))
      return {};
    out += static_cast<char>(group >> 16);
    if (padding < 2)
      out += static_cast<char>(group >> 8);
    if (padding < 1)
      out += static_cast<char>(group);
  }
  ok = true;
  return out;
}

} // namespace zelwire
