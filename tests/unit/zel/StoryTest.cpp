// SPDX-License-Identifier: MIT
#include "TestStore.h"

#include <gtest/gtest.h>
#include <sstream>

namespace
{

TestStore::Options seeded(std::uint64_t seed, unsigned liveliness)
{
  TestStore::Options options;
  options.seed = seed;
  options.liveliness = liveliness;
  return options;
}

// What the history tells, without the dates.
std::string history(const TestStore &store)
{
  std::string all;
  std::istringstream indexes(store.control({"list", "historicalAlerts"}).text);
  for (unsigned index = 0; indexes >> index;)
    all += store.get("historicalAlerts", index, "alertMsg") + "\n";
  return all;
}

std::string storyOf(std::uint64_t seed)
{
  const TestStore store(seeded(seed, 0));
  EXPECT_FALSE(store.control({"liveliness", "10"}).failed);
  EXPECT_FALSE(store.control({"jump", "600"}).failed);
  EXPECT_FALSE(store.control({"liveliness", "0"}).failed);
  return history(store);
}

TEST(Story, isTheSameForTheSameSeedAndOtherForOthers)
{
  const std::string first = storyOf(7), again = storyOf(7), other = storyOf(8);
  // The real time between the commands may add an event or two at the end.
  const std::size_t length = std::min(first.size(), again.size()) * 9 / 10;
  ASSERT_GT(length, 2000u);
  EXPECT_EQ(first.substr(0, length), again.substr(0, length));
  EXPECT_NE(first.substr(0, length), other.substr(0, length));
}

TEST(Story, doesNotHappenAtLivelinessZero)
{
  const TestStore store(seeded(1, 0));
  const std::string before = history(store);
  ASSERT_FALSE(store.control({"jump", "86400"}).failed);
  EXPECT_EQ(before, history(store));
}

TEST(Story, tellsOfPeopleDevicesAndFaults)
{
  const TestStore store(seeded(3, 0));
  ASSERT_FALSE(store.control({"liveliness", "5"}).failed);
  ASSERT_FALSE(store.control({"jump", "1200"}).failed);
  const std::string told = history(store);
  for (const char *part : {"logged in at receiver", "logged out at receiver", "KVM session established",
                           "KVM session disconnected", "reports:"})
    EXPECT_NE(std::string::npos, told.find(part)) << part;
}

TEST(Story, losesDevicesThatReturn)
{
  const TestStore store(seeded(3, 0));
  ASSERT_FALSE(store.control({"offline", "rx", "2", "30"}).failed);
  EXPECT_EQ("offline", store.get("rx", 2, "status"));
  ASSERT_FALSE(store.control({"jump", "40"}).failed);
  EXPECT_EQ("ready", store.get("rx", 2, "status"));
}

TEST(Story, keepsLivingThroughALongJump)
{
  const TestStore store(seeded(11, 3));
  ASSERT_FALSE(store.control({"jump", "36000"}).failed);
  EXPECT_EQ("ready", store.get("swx", 1, "status"));
  EXPECT_FALSE(store.control({"list", "userSession"}).text.empty());
}

TEST(StoryCommands, sayWhatIsWrongWithThem)
{
  const TestStore store(seeded(1, 0));
  EXPECT_TRUE(store.control({"offline", "rx", "99"}).failed);
  EXPECT_TRUE(store.control({"offline", "swx", "1"}).failed);
  EXPECT_TRUE(store.control({"offline", "rx", "2", "soon"}).failed);
  EXPECT_TRUE(store.control({"reset", "rx", "2", "softly"}).failed);
  EXPECT_TRUE(store.control({"fail-update", "rx", "2", "somehow"}).failed);
  EXPECT_TRUE(store.control({"alert", "NoSuchKind"}).failed);
  EXPECT_TRUE(store.control({"liveliness", "many"}).failed);
  EXPECT_TRUE(store.control({"happen", "-1"}).failed);
}

} // namespace
