// SPDX-License-Identifier: MIT
#include "base/StyleWords.h"

#include <algorithm>

namespace Wt
{
namespace Engine
{

namespace
{

/// Calls `word(text)` for each of the words.
template <typename F> void forEach(std::string_view text, const F &word)
{
  const char *const blanks = " \t\n\r\f";
  for (std::size_t from = text.find_first_not_of(blanks); from != text.npos;) {
    const std::size_t to = std::min(text.find_first_of(blanks, from), text.size());
    word(text.substr(from, to - from));
    from = text.find_first_not_of(blanks, to);
  }
}

void append(std::string &words, std::string_view word)
{
  if (!words.empty())
    words += ' ';
  words += word;
}

} // namespace

bool StyleWords::contains(std::string_view words, std::string_view wanted)
{
  bool found = false;
  forEach(words, [&](std::string_view word) { found = found || word == wanted; });
  return found;
}

bool StyleWords::add(std::string &words, std::string_view added)
{
  const std::size_t before = words.size();
  forEach(added, [&](std::string_view word) {
    if (!contains(words, word))
      append(words, word);
  });
  return words.size() != before;
}

std::string StyleWords::without(std::string_view words, std::string_view removed)
{
  std::string left;
  forEach(words, [&](std::string_view word) {
    if (!contains(removed, word))
      append(left, word);
  });
  return left;
}

} // namespace Engine
} // namespace Wt
