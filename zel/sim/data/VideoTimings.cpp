// SPDX-License-Identifier: MIT
#include "data/VideoTimings.h"

#include <iterator>

namespace zelsim
{

namespace
{

const VideoTiming kTimings[] = {
    {154000, 1920, 48, 32, 80, 1200, 3, 6, 26, true, false},
    {148500, 1920, 88, 44, 148, 1080, 4, 5, 36, true, true},
    {162000, 1600, 64, 192, 304, 1200, 1, 3, 46, true, true},
    {146250, 1680, 104, 176, 280, 1050, 3, 6, 30, false, true},
    {108000, 1280, 48, 112, 248, 1024, 1, 3, 38, true, true},
    {85500, 1366, 70, 143, 213, 768, 3, 3, 24, true, true},
    {65000, 1024, 24, 136, 160, 768, 3, 6, 29, false, false},
};

} // namespace

const VideoTiming *videoTimings(std::size_t &count)
{
  count = std::size(kTimings);
  return kTimings;
}

} // namespace zelsim
