// SPDX-License-Identifier: MIT
#include "SearchText.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <sstream>
#include <utf8proc.h>

namespace
{

char lowerCase(char letter)
{
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isAscii(const std::string &text)
{
  return std::all_of(text.begin(), text.end(), [](char letter) { return (letter & 0x80) == 0; });
}

} // namespace

std::string SearchText_folded(const std::string &text)
{
  const int options =
      UTF8PROC_STABLE | UTF8PROC_COMPAT | UTF8PROC_DECOMPOSE | UTF8PROC_CASEFOLD | UTF8PROC_STRIPMARK;
  if (!isAscii(text)) {
    utf8proc_uint8_t *mapped = nullptr;
    const utf8proc_ssize_t length = utf8proc_map(reinterpret_cast<const utf8proc_uint8_t *>(text.data()),
                                                 static_cast<utf8proc_ssize_t>(text.size()), &mapped,
                                                 static_cast<utf8proc_option_t>(options));
    const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> owner(mapped, &std::free);
    if (length >= 0)
      return std::string(reinterpret_cast<const char *>(mapped), static_cast<std::size_t>(length));
  }
  std::string folded = text;
  std::transform(folded.begin(), folded.end(), folded.begin(), lowerCase);
  return folded;
}

std::vector<std::string> SearchText_words(const std::string &text)
{
  std::istringstream in(SearchText_folded(text));
  std::vector<std::string> words;
  for (std::string word; in >> word;)
    words.push_back(word);
  return words;
}
