// SPDX-License-Identifier: MIT
#ifndef WT_BASE_ENTITIES_H_
#define WT_BASE_ENTITIES_H_

#include <cstddef>
#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

/// Reads the entity ("&amp;", "&#8364;", "&nbsp;" ...) that begins at `position`, appends its character to
/// `out` and moves behind it; false, with nothing moved, if there is no known one.
bool takeEntity(std::string_view text, std::size_t &position, std::string &out);

/// The text with its entities resolved; what is none stays.
std::string decodeEntities(std::string_view text);

/// Writes & < > and " as entities.
std::string escapeMarkup(std::string_view text);

/// Whether an XHTML element of this name never has content.
bool isVoidElement(std::string_view name);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_ENTITIES_H_
