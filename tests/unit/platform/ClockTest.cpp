// SPDX-License-Identifier: MIT
#include "Clock.h"

#include <gtest/gtest.h>

namespace
{

time_t fixedTime()
{
  return 1457338500;
}

} // namespace

TEST(Clock, isTheSystemClockUnlessReplaced)
{
  Clock_setSource(nullptr);
  const time_t before = time(nullptr);
  const time_t now = Clock_now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, time(nullptr));
}

TEST(Clock, takesTheTimeFromAReplacedSourceUntilItIsTakenBack)
{
  Clock_setSource(fixedTime);
  EXPECT_EQ(Clock_now(), 1457338500);
  Clock_setSource(nullptr);
  EXPECT_GT(Clock_now(), 1457338500);
}
