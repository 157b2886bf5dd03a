// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include <map>

namespace
{

class ChangeCounters : public StoreTest
{
protected:
  using Counters = std::map<unsigned, unsigned>;

  // The counters that a view watches.
  Counters all()
  {
    Counters counters;
    for (unsigned id : {1u, 6u, 7u, 8u, 10u, 13u, 14u, 17u})
      counters[id] = counter(id);
    return counters;
  }

  // The ids whose counters have moved since.
  std::vector<unsigned> moved(const Counters &before)
  {
    std::vector<unsigned> ids;
    for (const auto &entry : all())
      if (entry.second != before.at(entry.first))
        ids.push_back(entry.first);
    return ids;
  }
};

TEST_F(ChangeCounters, standAboveZeroFromTheBeginning)
{
  for (const auto &entry : all())
    EXPECT_GT(entry.second, 0u) << entry.first;
}

TEST_F(ChangeCounters, moveWithTheirOwnDataOnly)
{
  Counters before = all();
  ASSERT_EQ(0, set("swx", 2, {{"notes", "x"}}));
  EXPECT_EQ(std::vector<unsigned>{1}, moved(before));
  before = all();
  ASSERT_EQ(0, set("user", 3, {{"fullName", "x"}}));
  EXPECT_EQ(std::vector<unsigned>{6}, moved(before));
  before = all();
  ASSERT_EQ(0, set("rx", 3, {{"notes", "x"}}));
  EXPECT_EQ(std::vector<unsigned>{7}, moved(before));
  before = all();
  ASSERT_EQ(0, set("tx", 3, {{"notes", "x"}}));
  EXPECT_EQ(std::vector<unsigned>{8}, moved(before));
  before = all();
  ASSERT_EQ(0, setJson("userTargetList", 4, "target", R"([{"txIndex":9}])"));
  EXPECT_EQ(std::vector<unsigned>{10}, moved(before));
}

TEST_F(ChangeCounters, tellOfLoginsAndConnections)
{
  unsigned session = 0, connection = 0;
  Counters before = all();
  ASSERT_EQ(0, logIn(3, 2, &session));
  EXPECT_EQ(std::vector<unsigned>{13}, moved(before));
  before = all();
  ASSERT_EQ(0, connect(2, 1, "share_mode", &connection));
  EXPECT_EQ(std::vector<unsigned>{17}, moved(before));
  before = all();
  ASSERT_EQ(0, remove("connection", connection));
  EXPECT_EQ(std::vector<unsigned>{17}, moved(before));
  before = all();
  ASSERT_EQ(0, logInAdministrator("operator", "operator-1"));
  EXPECT_EQ(std::vector<unsigned>{14}, moved(before));
}

TEST_F(ChangeCounters, standStillWhenNothingChanges)
{
  ASSERT_EQ(0, set("rx", 3, {{"notes", "x"}}));
  const Counters before = all();
  ASSERT_EQ(0, set("rx", 3, {{"notes", "x"}}));
  EXPECT_EQ(10, set("rx", 3, {{"sharingInactivityTimeout", 99u}}));
  EXPECT_EQ(1119, logIn(4, 1));
  number("swx", 1, "currentSysTime");
  EXPECT_TRUE(moved(before).empty());
}

TEST_F(ChangeCounters, moveWithWhatHappensByItself)
{
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  const unsigned before = counter(7);
  pass(10);
  EXPECT_GT(counter(7), before);
}

TEST_F(ChangeCounters, neverGoBackOverARestart)
{
  ASSERT_EQ(0, set("rx", 3, {{"notes", "x"}}));
  const Counters before = all();
  store.kill();
  store.restart();
  reconnect();
  for (const auto &entry : all())
    EXPECT_GE(entry.second, before.at(entry.first)) << entry.first;
}

} // namespace
