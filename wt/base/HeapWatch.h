// SPDX-License-Identifier: MIT
#ifndef WT_BASE_HEAP_WATCH_H_
#define WT_BASE_HEAP_WATCH_H_

#include <algorithm>
#include <cstddef>

namespace Wt
{
namespace Engine
{

/// Says when it pays to give free memory back to the system. The C library does so by itself for the end of
/// its heap only, and a single long-lived object there keeps all that lies below it. What it has given back
/// still counts as free with it, so that the watch looks at how much has become free since. Not thread safe.
class HeapWatch
{
public:
  /// `freeBytes` are what the C library holds and the program does not use. True if it is to be given back
  /// now.
  bool freed(std::size_t freeBytes)
  {
    least_ = std::min(least_, freeBytes);
    if (freeBytes - least_ < kWorthwhile)
      return false;
    least_ = freeBytes;
    return true;
  }

private:
  static constexpr std::size_t kWorthwhile = 4u << 20;

  std::size_t least_ = 0; ///< since memory was given back last
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_HEAP_WATCH_H_
