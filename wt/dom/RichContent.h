// SPDX-License-Identifier: MIT
#ifndef WT_DOM_RICH_CONTENT_H_
#define WT_DOM_RICH_CONTENT_H_

#include "base/RichText.h"

#include <string>
#include <string_view>

namespace Wt
{
namespace Dom
{

/// The value of an element's "<" setting: a JSON array of texts and of elements ["tag", {attributes},
/// content...].

std::string richContent(const Engine::RichText &text);

/// Plain text, with its line breaks as elements.
std::string plainContent(std::string_view text);

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_RICH_CONTENT_H_
