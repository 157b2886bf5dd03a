// SPDX-License-Identifier: MIT
#ifndef WT_BASE_RICH_TEXT_POLICY_H_
#define WT_BASE_RICH_TEXT_POLICY_H_

#include "base/RichText.h"

#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

/// Whether the element (in lower case) may stay; else it goes with its content.
bool isAllowedElement(std::string_view name);

/// Whether the attribute (in lower case) may stay with this value.
bool isAllowedAttribute(std::string_view name, std::string_view value, RichText::Trust trust);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_RICH_TEXT_POLICY_H_
