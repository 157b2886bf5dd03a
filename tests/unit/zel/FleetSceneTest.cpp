// SPDX-License-Identifier: MIT
// A new switch looks as if it had been at work for a while, and nothing in it contradicts anything else.
#include "StoreTest.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>

namespace
{

using Rows = std::vector<std::vector<std::string>>;

class Scene : public StoreTest
{
protected:
  using StoreTest::StoreTest;

  // The records of a resource, each with its index and the parameters; none of them may hold a blank.
  Rows rowsOf(const std::string &resource, const std::vector<std::string> &parameters)
  {
    std::vector<std::string> words = {"list", resource};
    words.insert(words.end(), parameters.begin(), parameters.end());
    std::istringstream lines(store.control(words).text);
    std::string line;
    std::getline(lines, line);
    Rows rows;
    while (std::getline(lines, line)) {
      std::istringstream text(line);
      rows.emplace_back();
      for (std::string word; text >> word;)
        rows.back().push_back(word);
    }
    return rows;
  }

  std::set<std::string> valuesOf(const std::string &resource, const std::string &parameter)
  {
    std::set<std::string> values;
    for (const auto &row : rowsOf(resource, {parameter}))
      values.insert(row.back());
    return values;
  }

  static bool mayReach(const std::string &targets, const std::string &tx)
  {
    return targets.find("\"txIndex\":" + tx + "}") != std::string::npos;
  }

  void expectSessionsObeyTheRules()
  {
    std::map<std::string, std::string> userAt, access, modes, targets;
    for (const auto &row : rowsOf("userSession", {"userIndex", "rxIndex"}))
      userAt[row[2]] = row[1];
    for (const auto &row : rowsOf("user", {"allTargetAccess", "modeAllowed"})) {
      access[row[0]] = row[1];
      modes[row[0]] = row[2];
    }
    for (const auto &row : rowsOf("userTargetList", {"target"}))
      targets[row[0]] = row[1];
    std::map<std::string, unsigned> sharers;
    for (const auto &row : rowsOf("connection", {"rxIndex", "txIndex", "mode"})) {
      const std::string user = userAt[row[1]];
      ASSERT_NE("", user) << "nobody at receiver " << row[1];
      EXPECT_TRUE(access[user] == "enabled" || mayReach(targets[user], row[2])) << user << " on " << row[2];
      EXPECT_TRUE(modes[user] == row[3] || modes[user] == "share_or_private_mode") << user;
      const unsigned others = sharers[row[2]];
      EXPECT_TRUE(others == 0 || row[3] == "share_mode") << row[2];
      EXPECT_LT(others, 8u);
      sharers[row[2]] += row[3] == "private_mode" ? 8 : 1;
    }
    EXPECT_FALSE(sharers.empty());
  }

  void expectThePastToBeInOrderAndOfThisSwitch()
  {
    std::set<std::string> eids;
    for (const char *kind : {"rx", "tx", "swx"})
      eids.merge(valuesOf(kind, "eid"));
    std::int64_t last = 0;
    for (const auto &row : rowsOf("historicalAlerts", {"date", "originatorEid"})) {
      EXPECT_LE(last, std::stoll(row[1]));
      last = std::stoll(row[1]);
      EXPECT_EQ(1u, eids.count(row[2])) << row[2];
    }
    EXPECT_GT(last, 0);
  }
};

class LabScene : public Scene
{
};

TEST_F(LabScene, hasSessionsThatObeyTheRules)
{
  expectSessionsObeyTheRules();
}

TEST_F(LabScene, hasAPastInOrderThatItsDevicesTellOf)
{
  expectThePastToBeInOrderAndOfThisSwitch();
  EXPECT_GT(valuesOf("historicalAlerts", "originatorEid").size(), 4u);
  ASSERT_TRUE(hasAlert("historicalAlerts", "Firmware update of Test Rig failed"));
  EXPECT_EQ("failed_file_push", text("tx", 15, "upgradeStatus"));
}

TEST_F(LabScene, hasPeopleWithHabitsOfTheirOwn)
{
  EXPECT_GE(valuesOf("user", "keySettings").size(), 4u);
  const std::string shiftLead = store.get("user", 3, "keySettings");
  EXPECT_NE(std::string::npos, shiftLead.find("logout_and_disconnect"));
  // One favourite is beyond the rights; two people have the same ones in another order.
  EXPECT_TRUE(mayReach(store.get("user", 8, "favorite"), "1"));
  EXPECT_FALSE(mayReach(store.get("userTargetList", 8, "target"), "1"));
  EXPECT_EQ(R"([{"txIndex":1},{"txIndex":2},{"txIndex":4}])", store.get("user", 2, "favorite"));
  EXPECT_EQ(R"([{"txIndex":4},{"txIndex":2},{"txIndex":1}])", store.get("user", 7, "favorite"));
}

TEST_F(LabScene, hasDevicesThatAreNotAllTheSame)
{
  EXPECT_GE(valuesOf("rx", "firmwareVersion").size(), 2u);
  EXPECT_GE(valuesOf("tx", "firmwareVersion").size(), 2u);
  EXPECT_EQ(0u, number("rx", 12, "monitor"));
  EXPECT_EQ(16, set("edidControl", 0, {{"edidAction", "pull"}, {"rxIndex", 12u}, {"edidName", "none"}}));
  EXPECT_EQ("enabled", text("tx", 13, "wakeOnLan"));
}

class LargeScene : public Scene
{
protected:
  LargeScene() : Scene(TestStore::Options{1000, 1, 0, {}}) {}
};

TEST_F(LargeScene, hasSessionsThatObeyTheRulesAndEachPersonAtOneDesk)
{
  expectSessionsObeyTheRules();
  const Rows sessions = rowsOf("userSession", {"userIndex"});
  EXPECT_GT(sessions.size(), 200u);
  EXPECT_EQ(sessions.size(), valuesOf("userSession", "userIndex").size());
  EXPECT_EQ(2u, valuesOf("connection", "mode").size());
}

TEST_F(LargeScene, hasAPastInOrderThatItsDevicesTellOf)
{
  expectThePastToBeInOrderAndOfThisSwitch();
  EXPECT_GT(rows("historicalAlerts"), 300u);
  EXPECT_LT(rows("unacknowledgedAlerts"), 100u);
}

TEST_F(LargeScene, showsManyStatesVersionsAndPlaces)
{
  for (const char *kind : {"rx", "tx"}) {
    EXPECT_GE(valuesOf(kind, "status").size(), 3u) << kind;
    EXPECT_GE(valuesOf(kind, "firmwareVersion").size(), 4u) << kind;
    EXPECT_GE(valuesOf(kind, "modeAllowed").size(), 3u) << kind;
    EXPECT_GE(valuesOf(kind, "upgradeStatus").size(), 2u) << kind;
    const Rows states = rowsOf(kind, {"status"});
    const auto ready =
        std::count_if(states.begin(), states.end(), [](const auto &row) { return row.back() == "ready"; });
    EXPECT_GT(ready, 900) << kind;
  }
  const std::string favourites = store.get("user", 3, "favorite");
  EXPECT_EQ(31, std::count(favourites.begin(), favourites.end(), '{'));
}

} // namespace
