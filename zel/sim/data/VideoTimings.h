// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_VIDEO_TIMINGS_H_
#define ZEL_SIM_DATA_VIDEO_TIMINGS_H_

#include <cstddef>

namespace zelsim
{

/// One video mode as a monitor describes it. Widths in pixels, heights in lines, the clock in kHz.
struct VideoTiming {
  unsigned pixelClock;
  unsigned horizontalResolution, horizontalFrontPorch, horizontalSyncWidth, horizontalBackPorch;
  unsigned verticalResolution, verticalFrontPorch, verticalSyncWidth, verticalBackPorch;
  bool horizontalPositive, verticalPositive;
};

/// The modes that the simulated monitors and computers use, largest first. The pointer is static.
const VideoTiming *videoTimings(std::size_t &count);

} // namespace zelsim

#endif // ZEL_SIM_DATA_VIDEO_TIMINGS_H_
