// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"
#include "rules/Form.h"

#include <fstream>
#include <set>

namespace
{

class Lab : public StoreTest
{
};

TEST_F(Lab, hasSwitchesReceiversTransmittersAndPeople)
{
  EXPECT_EQ(3u, rows("swx"));
  EXPECT_EQ(16u, rows("rx"));
  EXPECT_EQ(16u, rows("tx"));
  EXPECT_EQ(10u, rows("user"));
  EXPECT_GT(rows("userSession"), 3u);
  EXPECT_GT(rows("connection"), 3u);
  EXPECT_GT(rows("historicalAlerts"), rows("unacknowledgedAlerts"));
}

TEST_F(Lab, isLedByThisSwitch)
{
  EXPECT_EQ("master", text("swx", 1, "mode"));
  EXPECT_EQ("controller", text("swx", 1, "cascadeRole"));
  EXPECT_EQ("ready", text("swx", 1, "status"));
  EXPECT_EQ("non_managed", text("systemGlobals", 0, "managedSetting"));
  EXPECT_EQ(text("swx", 1, "eid"), text("systemGlobals", 0, "masterSwitchEid"));
}

TEST_F(Lab, hasIconsOfEveryBrand)
{
  for (const std::string brand : {"unknown", "halden", "greyfen"})
    for (const char *name : {"icon00.png", "icon16.png", "icon17.png", "icon24.png"}) {
      std::ifstream file(store.iconDirectory() + "/" + brand + "/" + name, std::ios::binary);
      char head[24] = {};
      file.read(head, sizeof head);
      const char expected[] = "\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\0\x18\0\0\0\x18";
      EXPECT_EQ(std::string(expected, 24), std::string(head, 24)) << brand << name;
    }
}

TEST_F(Lab, keepsAnIconThatWasReplaced)
{
  const std::string path = store.iconDirectory() + "/unknown/icon17.png";
  std::ofstream(path, std::ios::binary | std::ios::trunc) << "mine";
  store.kill();
  store.restart();
  std::string content;
  std::getline(std::ifstream(path), content);
  EXPECT_EQ("mine", content);
}

class LargeFleet : public StoreTest
{
protected:
  LargeFleet() : StoreTest(options()) {}
  static TestStore::Options options()
  {
    TestStore::Options large;
    large.fleet = 2500;
    return large;
  }

  std::set<std::string> eids(json_t *response)
  {
    std::set<std::string> all;
    for (unsigned i = 0; response && i < static_cast<unsigned>(ZelRspUtil_numEntries(response)); ++i)
      all.insert(ZelRspUtil_getIndexedStringParam(response, i, "eid"));
    if (response)
      ZelRspUtil_free(response);
    return all;
  }
};

TEST_F(LargeFleet, hasFiveThousandDevicesWithEidsOfTheirOwn)
{
  std::set<std::string> all = eids(ZelReq_rxRetrieve(client, "[\"index\",\"eid\",\"name\"]"));
  EXPECT_EQ(2500u, all.size());
  all.merge(eids(ZelReq_txRetrieve(client, "[\"index\",\"eid\",\"name\"]")));
  EXPECT_EQ(5000u, all.size());
  all.merge(eids(ZelReq_swxRetrieve(client, "[\"index\",\"eid\",\"name\"]")));
  EXPECT_EQ(5025u, all.size());
  for (const std::string &eid : all)
    EXPECT_TRUE(!eid.empty() && zelsim::hasForm(eid, zelsim::Form::EidOrEmpty)) << eid;
}

// Resident kilobytes of a process.
unsigned long residentOf(pid_t pid)
{
  std::ifstream status("/proc/" + std::to_string(pid) + "/status");
  std::string word;
  unsigned long kilobytes = 0;
  while (status >> word)
    if (word == "VmRSS:")
      status >> kilobytes;
  return kilobytes;
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
constexpr unsigned long kMostMemory = 40 * 1024;
#else
constexpr unsigned long kMostMemory = 4096 * 1024;
#endif

TEST_F(LargeFleet, needsLittleMemoryAlsoAfterSettingsWereSavedAndLoaded)
{
  EXPECT_GT(residentOf(store.pid()), 0u);
  EXPECT_LT(residentOf(store.pid()), kMostMemory);
  ASSERT_EQ(0, set("swxControl", 1, {{"settingsAction", "zip"}, {"settingsPassword", ""}}));
  ASSERT_EQ(0, set("swxControl", 1,
                   {{"settingsAction", "unzip"},
                    {"settingsFilename", store.settingsDirectory() + "/settings.tar.gz"},
                    {"settingsPassword", ""}}));
  EXPECT_LT(residentOf(store.pid()), kMostMemory);
}

// The rows of a read of every receiver by its index.
unsigned rowsOfAllIndexes(ZelClient_s *client, const char *resource, const char *select)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  json_t *indexes = json_array();
  for (unsigned index = 2600; index > 0; --index)
    json_array_append_new(indexes, json_integer(index));
  json_object_set_new(request, "query", json_pack("{s:o}", "index", indexes));
  if (select)
    ZelObj_setSelect(request, select);
  json_t *response = ZelReqUtil_submit(request, client);
  const auto count = static_cast<unsigned>(ZelRspUtil_numEntries(response));
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return count;
}

TEST_F(LargeFleet, answersAReadOfThousandsOfIndexesEachOnce)
{
  EXPECT_EQ(2500u, rowsOfAllIndexes(client, "rx", "name"));
  EXPECT_EQ(2500u, rowsOfAllIndexes(client, "rx", "inputVideoTiming"));
  EXPECT_EQ(2500u, rowsOfAllIndexes(client, "rxUsbDiag", nullptr));
}

TEST_F(LargeFleet, connectsAcrossItsSwitches)
{
  ASSERT_EQ(0, logIn(3, 1));
  // Some of them are taken, or off; a few more are tried then.
  int refused = -1;
  for (unsigned tx = 2500; refused != 0 && tx > 2480; --tx)
    refused = connect(1, tx, "private_mode");
  EXPECT_EQ(0, refused);
}

class BusyFleet : public StoreTest
{
protected:
  BusyFleet() : StoreTest(options()) {}
  static TestStore::Options options()
  {
    TestStore::Options busy;
    busy.fleet = 60;
    busy.more = {"--sessions", "50", "--alerts", "3000"};
    return busy;
  }
};

TEST_F(BusyFleet, hasAsManySessionsAsAskedForEachOfAUserOfItsOwn)
{
  EXPECT_EQ(50u, rows("connection"));
  EXPECT_EQ(50u, rows("userSession"));
  std::set<int> users;
  json_t *sessions = ZelReq_userSessionRetrieve(client, nullptr);
  for (unsigned row = 0; row < 50; ++row)
    users.insert(ZelRspUtil_getIndexedIntegerParam(sessions, row, "userIndex"));
  ZelRspUtil_free(sessions);
  EXPECT_EQ(50u, users.size());
  // A desk with a session can't be connected again, and one without can.
  EXPECT_NE(0, connect(1, 60, "share_mode"));
}

TEST_F(BusyFleet, hasAFullHistoryOfWhichATenthIsUnacknowledged)
{
  const unsigned last = number("alertsControl", 0, "lastInstanceId");
  EXPECT_EQ(2000u, rows("historicalAlerts"));
  EXPECT_TRUE(exists("historicalAlerts", last));
  EXPECT_TRUE(exists("historicalAlerts", last - 1999));
  EXPECT_FALSE(exists("historicalAlerts", last - 2000));
  EXPECT_NEAR(300, static_cast<double>(rows("unacknowledgedAlerts")), 10);
}

} // namespace
