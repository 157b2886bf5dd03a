// SPDX-License-Identifier: MIT
#ifndef WT_BASE_UTF8_H_
#define WT_BASE_UTF8_H_

#include <cstddef>
#include <locale>
#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

bool isAscii(std::string_view text);

/// The length of the well-formed character that begins at `position`, or 0 if none does.
std::size_t utf8Length(std::string_view text, std::size_t position);
/// The text with every byte that is not part of a well-formed character replaced by '?'.
std::string validUtf8(const std::string &text);
bool isValidUtf8(std::string_view text);

/// The length in UTF-16 units, as browsers count, and the beginning of the text with no more of them.
std::size_t utf16Length(std::string_view text);
std::string_view utf16Prefix(std::string_view text, std::size_t units);

/// Appends the character; what is not a Unicode scalar value becomes '?'.
void appendUtf8(std::string &text, char32_t character);
std::string toUtf8(const std::wstring &text);
/// Malformed bytes become '?'.
std::wstring fromUtf8(const std::string &text);

/// Conversions by a locale's encoding; what does not convert becomes '?'.
std::wstring widen(const std::string &text, const std::locale &locale);
std::string narrow(const std::wstring &text, const std::locale &locale);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_UTF8_H_
