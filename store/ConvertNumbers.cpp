// SPDX-License-Identifier: MIT
#include "Convert.h"

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <limits>

namespace
{

// A single-precision number of this size or more has no fraction to round.
constexpr float kNoFraction = 8388608.0F;
// The largest single below one half: adding it rounds without lifting a number just below a half.
constexpr float kAlmostHalf = 0.49999997F;

// Cuts the fraction off. A timing without pixels gives no number; it must not be undefined for all that.
unsigned int cut(float value)
{
  if (!(value > 0.0F))
    return 0;
  return value < 4294967296.0F ? static_cast<unsigned int>(value) : std::numeric_limits<unsigned int>::max();
}

// The switch computes in single precision, which decides the last digit for some timings.
double throughSingle(unsigned int value)
{
  return static_cast<double>(static_cast<float>(value));
}

} // namespace

unsigned int Convert_stringToUInt32(const std::string &text, unsigned int &value)
{
  char *end = nullptr;
  value = static_cast<unsigned int>(std::strtol(text.c_str(), &end, 10));
  return end == text.c_str() + text.size() ? 0 : 1;
}

void Convert_dateTimeStampToString(long seconds, char *buffer, int size)
{
  if (!buffer || size <= 0)
    return;
  const time_t time = seconds;
  struct tm local = {};
  constexpr time_t kEpoch = 0;
  if (!localtime_r(&time, &local)) // the year does not fit
    localtime_r(&kEpoch, &local);
  const int month = local.tm_mon > 11 ? 1 : local.tm_mon;
  std::snprintf(buffer, static_cast<std::size_t>(size), "%ld-%d-%d %02d:%02d:%02d", local.tm_year + 1900L,
                month + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec);
}

unsigned int Convert_videoTimingToHorFreq(unsigned int pixelClock, unsigned int horizontalResolution,
                                          unsigned int horizontalFrontPorch, unsigned int horizontalSyncWidth,
                                          unsigned int horizontalBackPorch)
{
  const unsigned int total =
      horizontalResolution + horizontalFrontPorch + horizontalSyncWidth + horizontalBackPorch;
  const double linesPerSecond = throughSingle(pixelClock) * 1000.0 / throughSingle(total);
  float hundreds = static_cast<float>(linesPerSecond) / 100.0F;
  if (hundreds < kNoFraction)
    hundreds = static_cast<float>(cut(hundreds + kAlmostHalf));
  return cut(hundreds / 10.0F);
}

unsigned int Convert_videoTimingToFrameRate(unsigned int pixelClock, unsigned int horizontalResolution,
                                            unsigned int horizontalFrontPorch,
                                            unsigned int horizontalSyncWidth,
                                            unsigned int horizontalBackPorch, unsigned int verticalResolution,
                                            unsigned int verticalFrontPorch, unsigned int verticalSyncWidth,
                                            unsigned int verticalBackPorch)
{
  const unsigned int horizontalTotal =
      horizontalResolution + horizontalFrontPorch + horizontalSyncWidth + horizontalBackPorch;
  const unsigned int verticalTotal =
      verticalResolution + verticalFrontPorch + verticalSyncWidth + verticalBackPorch;
  const float framesPerSecond = static_cast<float>(
      throughSingle(pixelClock) * 1000.0 / throughSingle(horizontalTotal) / throughSingle(verticalTotal));
  return framesPerSecond >= kNoFraction ? cut(framesPerSecond) : cut(framesPerSecond + kAlmostHalf);
}
