// SPDX-License-Identifier: MIT
// Commands of the control channel: names for numbers, readable lists, and nothing that silently does nothing.
#include "StoreTest.h"

namespace
{

class ControlCommands : public StoreTest
{
protected:
  std::string run(const std::vector<std::string> &words)
  {
    const TestStore::Outcome outcome = store.control(words);
    EXPECT_FALSE(outcome.failed) << outcome.text;
    return outcome.text;
  }

  void expectRefused(const std::vector<std::string> &words, const std::string &why)
  {
    const TestStore::Outcome outcome = store.control(words);
    EXPECT_TRUE(outcome.failed);
    EXPECT_NE(std::string::npos, outcome.text.find(why)) << outcome.text;
  }
};

TEST_F(ControlCommands, takeNamesAndEidsForIndexes)
{
  const std::string eid = store.get("rx", 3, "eid");
  EXPECT_EQ(eid + "\n", run({"get", "rx", "Desk 3 Traffic", "eid"}));
  EXPECT_EQ("Desk 3 Traffic\n", run({"get", "rx", eid, "name"}));
  EXPECT_EQ("Desk 3 Traffic\n", run({"get", "rx", "desk 3 traffic", "name"}));
  run({"set", "user", "rokafor", "fullName", "R. Okafor"});
  EXPECT_EQ("R. Okafor", store.get("user", 4, "fullName"));
  EXPECT_EQ("Lucia Ocampo, external\n", run({"get", "user", "locampo", "fullName"}));
  run({"offline", "tx", "Map Server"});
  EXPECT_EQ("offline", store.get("tx", 5, "status"));
  expectRefused({"get", "rx", "Desk 99"}, "no record called");
  ASSERT_EQ(0, set("rx", 4, {{"name", "Desk 3 Traffic"}}));
  expectRefused({"get", "rx", "Desk 3 Traffic"}, "several records");
}

TEST_F(ControlCommands, listRecordsInColumns)
{
  const std::string list = run({"list", "swx", "name", "status"});
  EXPECT_EQ("index  name            status\n"
            "1      Control Room    ready\n"
            "2      Equipment Room  ready\n"
            "3      Annex           ready\n",
            list);
  EXPECT_EQ("1\n2\n3\n", run({"list", "swx"}));
  EXPECT_NE(std::string::npos, run({"table", "rx"}).find("Desk 3 Traffic"));
  expectRefused({"list", "swx", "colour"}, "no parameter");
}

TEST_F(ControlCommands, describeOneResource)
{
  const std::string text = run({"describe", "user"});
  EXPECT_EQ(0u, text.find("user ("));
  EXPECT_NE(std::string::npos, text.find("change number 6"));
  EXPECT_EQ(std::string::npos, text.find("systemGlobals"));
  expectRefused({"describe", "nobody"}, "unknown resource");
}

TEST_F(ControlCommands, haveNoSilentEffect)
{
  expectRefused({"set", "swx", "1", "currentSysTime", "5"}, "computed");
  expectRefused({"set", "rx", "1", "reset", "cold_reboot"}, "command");
  expectRefused({"alert", "Foo"}, "FanFault");
}

TEST_F(ControlCommands, tellErrorsInWords)
{
  expectRefused({"login", "rokafor", "Training Desk"}, "error 1108, receiver not online");
  EXPECT_NE(std::string::npos, run({"errors"}).find("1127  backup not ready"));
}

TEST_F(ControlCommands, seatAndConnectPeopleByTheSwitchsRules)
{
  run({"login", "rokafor", "Crisis Room 1"});
  expectRefused({"login", "jnovak", "Crisis Room 1"}, "error 1119");
  EXPECT_EQ("4", store.get("userSession", rows("userSession"), "userIndex"));
  expectRefused({"disconnect", "11"}, "not connected");
  expectRefused({"connect", "11", "tx-nobody"}, "no record called");
  expectRefused({"connect", "11", "2", "secret"}, "neither shared nor private");
  ASSERT_EQ(0, setJson("userTargetList", 4, "target", R"([{"txIndex":5}])"));
  expectRefused({"connect", "Crisis Room 1", "Alarm Server"}, "error 1105");
  const unsigned before = rows("connection");
  run({"connect", "Crisis Room 1", "Map Server", "private"});
  EXPECT_EQ(before + 1, rows("connection"));
  run({"disconnect", "Crisis Room 1"});
  EXPECT_EQ(before, rows("connection"));
  run({"logout", "Crisis Room 1"});
  expectRefused({"logout", "Crisis Room 1"}, "nobody");
}

} // namespace
