// SPDX-License-Identifier: MIT
#include "life/Clock.h"

#include <gtest/gtest.h>
#include <vector>

namespace
{

using zelsim::Clock;

constexpr Clock::Milliseconds kHour = 3600 * 1000;

TEST(SimulatedClock, runsActionsOfAJumpInOrderAndAtTheirTimes)
{
  Clock clock;
  Clock::Milliseconds start = clock.nowMs();
  std::vector<int> ran;
  std::vector<Clock::Milliseconds> times;
  auto note = [&](int which) {
    return [&, which] {
      ran.push_back(which);
      times.push_back((clock.nowMs() - start + 500) / 1000);
    };
  };
  clock.after(30000, note(3));
  clock.after(10000, note(1));
  clock.after(20000, [&] {
    note(2)();
    clock.after(5000, note(25));
  });
  clock.after(2 * kHour, note(9));
  clock.jump(kHour);
  EXPECT_EQ((std::vector<int>{1, 2, 25, 3}), ran);
  EXPECT_EQ((std::vector<Clock::Milliseconds>{10, 20, 25, 30}), times);
  EXPECT_LT(clock.nowMs(), start + kHour) << "a jump over, it is the present again";
}

TEST(SimulatedClock, bringsWhatIsToComeNearerByAJump)
{
  Clock clock;
  bool ran = false;
  clock.after(3 * kHour, [&] { ran = true; });
  clock.jump(2 * kHour);
  EXPECT_FALSE(ran);
  EXPECT_LE(clock.untilNext(), kHour);
  clock.jump(kHour);
  EXPECT_TRUE(ran);
}

TEST(SimulatedClock, repeatsUntilCancelled)
{
  Clock clock;
  int count = 0;
  Clock::Id id = clock.every(1000, [&] { ++count; });
  clock.jump(10500);
  EXPECT_EQ(10, count);
  clock.cancel(id);
  clock.jump(kHour);
  EXPECT_EQ(10, count);
  EXPECT_EQ(-1, clock.untilNext());
}

TEST(SimulatedClock, letsAnActionCancelItselfAndOthers)
{
  Clock clock;
  int count = 0;
  Clock::Id repeating = 0;
  repeating = clock.every(1000, [&] {
    if (++count == 3)
      clock.cancel(repeating);
  });
  bool other = false;
  Clock::Id later = clock.after(5000, [&] { other = true; });
  clock.after(4000, [&] { clock.cancel(later); });
  clock.jump(kHour);
  EXPECT_EQ(3, count);
  EXPECT_FALSE(other);
}

TEST(SimulatedClock, runsWhatIsDueAndNothingElse)
{
  Clock clock;
  bool now = false;
  bool later = false;
  clock.after(-5, [&] { now = true; });
  clock.after(kHour, [&] { later = true; });
  EXPECT_EQ(0, clock.untilNext());
  while (!now)
    clock.runDue();
  EXPECT_FALSE(clock.runDue());
  EXPECT_FALSE(later);
  EXPECT_GT(clock.untilNext(), kHour / 2);
  clock.jump(-kHour);
  EXPECT_FALSE(later);
}

} // namespace
