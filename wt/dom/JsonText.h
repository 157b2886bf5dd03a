// SPDX-License-Identifier: MIT
#ifndef WT_DOM_JSON_TEXT_H_
#define WT_DOM_JSON_TEXT_H_

#include <string>
#include <string_view>

namespace Wt
{
namespace Dom
{

/// Appends `text` as a JSON string with its quotes. Bytes that are not valid UTF-8 become U+FFFD, so that
/// whatever a store or a file holds, the message that carries it stays valid.
void appendJsonString(std::string &out, std::string_view text);

/// Appends a decimal number.
void appendJsonNumber(std::string &out, long long value);

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_JSON_TEXT_H_
