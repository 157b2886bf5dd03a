// SPDX-License-Identifier: MIT
#ifndef WT_BASE_STYLE_WORDS_H_
#define WT_BASE_STYLE_WORDS_H_

#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

/// Lists of words between blanks, as the "class" attribute is one.
namespace StyleWords
{

bool contains(std::string_view words, std::string_view wanted);
/// Adds the words that are not in the list yet. True if there was one.
bool add(std::string &words, std::string_view added);
/// The list without these words, with single blanks.
std::string without(std::string_view words, std::string_view removed);

} // namespace StyleWords

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_STYLE_WORDS_H_
