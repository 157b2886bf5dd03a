// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SEARCH_TEXT_H_
#define WIDGETS_SEARCH_TEXT_H_

#include <string>
#include <vector>

/// Texts as people search them: case and accents make no difference.

/// The text (UTF-8) without case, accents and compatibility forms: "Café" becomes "cafe". A text that is no
/// UTF-8 loses the case of its ASCII letters only.
std::string SearchText_folded(const std::string &text);

/// The words of a text, folded; blanks lie between them.
std::vector<std::string> SearchText_words(const std::string &text);

#endif // WIDGETS_SEARCH_TEXT_H_
