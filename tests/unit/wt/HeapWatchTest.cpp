// SPDX-License-Identifier: MIT
#include "base/HeapWatch.h"

#include <gtest/gtest.h>

using Wt::Engine::HeapWatch;

namespace
{

constexpr std::size_t kMegabyte = 1u << 20;

} // namespace

TEST(HeapWatch, findsMuchThatHasBecomeFreeAndTellsItOnce)
{
  HeapWatch watch;
  EXPECT_FALSE(watch.freed(3 * kMegabyte));
  EXPECT_TRUE(watch.freed(100 * kMegabyte));
  EXPECT_FALSE(watch.freed(100 * kMegabyte));
  EXPECT_FALSE(watch.freed(103 * kMegabyte));
}

TEST(HeapWatch, findsWhatHasBecomeFreeAgainAfterItWasUsed)
{
  HeapWatch watch;
  EXPECT_TRUE(watch.freed(100 * kMegabyte));
  EXPECT_FALSE(watch.freed(20 * kMegabyte));
  EXPECT_FALSE(watch.freed(23 * kMegabyte));
  EXPECT_TRUE(watch.freed(60 * kMegabyte));
}
