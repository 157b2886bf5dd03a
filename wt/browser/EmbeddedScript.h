// SPDX-License-Identifier: MIT
#ifndef WT_BROWSER_EMBEDDED_SCRIPT_H_
#define WT_BROWSER_EMBEDDED_SCRIPT_H_

#include <string_view>

namespace Wt
{
namespace Browser
{

/// The text of the browser's runtime, an ES module.
std::string_view script();

} // namespace Browser
} // namespace Wt

#endif // WT_BROWSER_EMBEDDED_SCRIPT_H_
