// SPDX-License-Identifier: MIT
#include "dom/JsonText.h"

#include <charconv>

namespace Wt
{
namespace Dom
{

namespace
{

const char kReplacement[] = "\xEF\xBF\xBD";

/// Length of the valid UTF-8 sequence at `p`, 0 if there is none.
std::size_t sequenceLength(const unsigned char *p, std::size_t left)
{
  const unsigned char c = p[0];
  if (c < 0x80)
    return 1;
  std::size_t length = 0;
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  if (c >= 0xC2 && c <= 0xDF) {
    length = 2;
  } else if (c >= 0xE0 && c <= 0xEF) {
    length = 3;
    low = c == 0xE0 ? 0xA0 : 0x80;
    high = c == 0xED ? 0x9F : 0xBF;
  } else if (c >= 0xF0 && c <= 0xF4) {
    length = 4;
    low = c == 0xF0 ? 0x90 : 0x80;
    high = c == 0xF4 ? 0x8F : 0xBF;
  }
  if (length == 0 || length > left || p[1] < low || p[1] > high)
    return 0;
  for (std::size_t i = 2; i < length; ++i)
    if ((p[i] & 0xC0) != 0x80)
      return 0;
  return length;
}

void appendControl(std::string &out, unsigned char c)
{
  static const char digits[] = "0123456789abcdef";
  switch (c) {
  case '\n':
    out += "\\n";
    return;
  case '\t':
    out += "\\t";
    return;
  case '\r':
    out += "\\r";
    return;
  default:
    break;
  }
  out += "\\u00";
  out += digits[c >> 4];
  out += digits[c & 15];
}

} // namespace

void appendJsonString(std::string &out, std::string_view text)
{
  const auto *p = reinterpret_cast<const unsigned char *>(text.data());
  const std::size_t size = text.size();
  out += '"';
  for (std::size_t i = 0; i < size;) {
    const unsigned char c = p[i];
    if (c < 0x20) {
      appendControl(out, c);
      ++i;
    } else if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
      ++i;
    } else if (c < 0x80) {
      out += static_cast<char>(c);
      ++i;
    } else if (const std::size_t length = sequenceLength(p + i, size - i)) {
      out.append(text.data() + i, length);
      i += length;
    } else {
      out += kReplacement;
      ++i;
    }
  }
  out += '"';
}

void appendJsonNumber(std::string &out, long long value)
{
  char buffer[24];
  const auto end = std::to_chars(buffer, buffer + sizeof buffer, value).ptr;
  out.append(buffer, end);
}

} // namespace Dom
} // namespace Wt
