// SPDX-License-Identifier: MIT
#include "base/Utf8.h"

#include <algorithm>

namespace Wt
{
namespace Engine
{

namespace
{

typedef std::codecvt<wchar_t, char, std::mbstate_t> Codec;

unsigned char byteAt(std::string_view text, std::size_t position)
{
  return static_cast<unsigned char>(text[position]);
}

bool isScalar(char32_t character)
{
  return character <= 0x10ffff && !(character >= 0xd800 && character <= 0xdfff);
}

char32_t decodeAt(std::string_view text, std::size_t position, std::size_t length)
{
  static const unsigned char leadMask[] = {0, 0x7f, 0x1f, 0x0f, 0x07};
  char32_t result = byteAt(text, position) & leadMask[length];
  for (std::size_t i = 1; i < length; ++i)
    result = (result << 6) | (byteAt(text, position + i) & 0x3fu);
  return result;
}

} // namespace

bool isAscii(std::string_view text)
{
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::size_t utf8Length(std::string_view text, std::size_t position)
{
  if (position >= text.size())
    return 0;
  const unsigned char lead = byteAt(text, position);
  if (lead < 0x80)
    return 1;
  const std::size_t length = lead >= 0xf0 ? 4 : lead >= 0xe0 ? 3 : 2;
  if (lead < 0xc2 || lead > 0xf4 || position + length > text.size())
    return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((byteAt(text, position + i) & 0xc0) != 0x80)
      return 0;
  static const char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const char32_t character = decodeAt(text, position, length);
  return character >= smallest[length] && isScalar(character) ? length : 0;
}

bool isValidUtf8(std::string_view text)
{
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = utf8Length(text, i);
    if (!length)
      return false;
    i += length;
  }
  return true;
}

std::string validUtf8(const std::string &text)
{
  if (isValidUtf8(text))
    return text;
  std::string result;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = utf8Length(text, i);
    if (length)
      result.append(text, i, length);
    else
      result += '?';
    i += length ? length : 1;
  }
  return result;
}

std::string_view utf16Prefix(std::string_view text, std::size_t units)
{
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t length = std::max<std::size_t>(utf8Length(text, at), 1);
    const std::size_t needed = length == 4 ? 2 : 1;
    if (needed > units)
      break;
    units -= needed;
    at += length;
  }
  return text.substr(0, at);
}

std::size_t utf16Length(std::string_view text)
{
  std::size_t units = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = std::max<std::size_t>(utf8Length(text, at), 1);
    units += length == 4 ? 2 : 1;
    at += length;
  }
  return units;
}

void appendUtf8(std::string &text, char32_t character)
{
  if (!isScalar(character))
    character = '?';
  const auto tail = [&text, character](int shift) {
    text += static_cast<char>(0x80 | ((character >> shift) & 0x3f));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xc0 | (character >> 6));
    tail(0);
  } else if (character < 0x10000) {
    text += static_cast<char>(0xe0 | (character >> 12));
    tail(6);
    tail(0);
  } else {
    text += static_cast<char>(0xf0 | (character >> 18));
    tail(12);
    tail(6);
    tail(0);
  }
}

std::string toUtf8(const std::wstring &text)
{
  std::string result;
  for (wchar_t c : text)
    appendUtf8(result, static_cast<char32_t>(c));
  return result;
}

std::wstring fromUtf8(const std::string &text)
{
  std::wstring result;
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t length = utf8Length(text, i);
    result += length ? static_cast<wchar_t>(decodeAt(text, i, length)) : L'?';
    i += length ? length : 1;
  }
  return result;
}

std::wstring widen(const std::string &text, const std::locale &locale)
{
  const Codec &codec = std::use_facet<Codec>(locale);
  std::wstring result;
  std::mbstate_t state{};
  const char *from = text.data();
  const char *const end = from + text.size();
  while (from != end) {
    wchar_t character = 0;
    wchar_t *to = &character;
    const char *next = from;
    const auto outcome = codec.in(state, from, end, next, &character, &character + 1, to);
    if (outcome == std::codecvt_base::error || to == &character) {
      character = L'?';
      next = from + 1;
      state = std::mbstate_t{};
    }
    result += character;
    from = next;
  }
  return result;
}

std::string narrow(const std::wstring &text, const std::locale &locale)
{
  const Codec &codec = std::use_facet<Codec>(locale);
  std::string result;
  std::mbstate_t state{};
  for (const wchar_t &character : text) {
    char bytes[16];
    char *to = bytes;
    const wchar_t *next = &character;
    const auto outcome = codec.out(state, &character, &character + 1, next, bytes, bytes + sizeof bytes, to);
    if (outcome == std::codecvt_base::ok && next != &character) {
      result.append(bytes, to);
    } else {
      result += '?';
      state = std::mbstate_t{};
    }
  }
  return result;
}

} // namespace Engine
} // namespace Wt
