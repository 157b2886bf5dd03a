// SPDX-License-Identifier: MIT
#ifndef WT_BASE_REPEAT_COUNTS_H_
#define WT_BASE_REPEAT_COUNTS_H_

#include <string>
#include <string_view>

namespace Wt
{
namespace Engine
{

/// The library counts repeats up to 1000 only, where browsers know no limit: gives the same pattern with
/// greater counts as a row of smaller ones, "x{0,1024}" as "(?:x{0,1000}x{0,24})". Counts above 10,000,
/// what would become too long, and what is not well-formed stay as they are, for the library to refuse.
std::string withSmallRepeatCounts(std::string_view pattern);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_REPEAT_COUNTS_H_
