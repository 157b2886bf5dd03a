// SPDX-License-Identifier: MIT
#include "StoreSnapshot.h"

#include "StoreTest.h"

#include <algorithm>

using testing::SizeIs;

class StoreSnapshots : public StoreTest
{
protected:
  StoreSnapshots()
  {
    store.setRecords("rx", R"([{"index": 1, "eid": "AAAAAA-111111", "name": "Desk"},
                               {"index": 2, "eid": "AAAAAA-222222"}])");
    store.setRecords("swx", R"([{"index": 1, "name": "Main", "eid": "CCCCCC-111111"},
                                {"index": 2, "name": "", "eid": "CCCCCC-222222"}])");
    store.setRecords("portStatus", R"([
        {"index": 1, "swxIndex": 1, "ports": [{"portIndex": 1, "eid": "AAAAAA-111111"},
                                              {"portIndex": 2, "eid": ""}]},
        {"index": 2, "swxIndex": 2, "ports": [{"portIndex": 5, "eid": "BBBBBB-111111"},
                                              {"portIndex": 6, "eid": "AAAAAA-111111"}]}])");
    for (const char *resource : {"user", "userSession", "connection", "tx"})
      store.setRecords(resource, "[]");
  }
  StoreSnapshot snapshot;
};

TEST_F(StoreSnapshots, nameDevicesByNameOrEid)
{
  EXPECT_EQ(snapshot.receiver(1), "Desk");
  EXPECT_EQ(snapshot.receiver(2), "EID - AAAAAA-222222");
  EXPECT_EQ(snapshot.receiver(3), "");
  EXPECT_EQ(snapshot.networkSwitch(2), "EID - CCCCCC-222222");
  EXPECT_EQ(snapshot.transmitter(1), "");
}

TEST_F(StoreSnapshots, askForAResourceOnceAtMostAndNotAgain)
{
  EXPECT_THAT(store.requests(), SizeIs(0));
  for (unsigned int index = 0; index < 9; ++index) {
    snapshot.receiver(index);
    snapshot.transmitter(index);
    snapshot.user(index);
    snapshot.loginAt(index);
    snapshot.connectionOfReceiver(index);
    snapshot.connectionOfTransmitter(index);
  }
  EXPECT_THAT(store.requests(), SizeIs(5));
}

TEST_F(StoreSnapshots, nameTheSwitchOfADeviceAndNoneForADeviceOnNoPort)
{
  EXPECT_EQ(snapshot.switchOf("BBBBBB-111111"), "EID - CCCCCC-222222");
  EXPECT_EQ(snapshot.switchOf("AAAAAA-111111"), "Main");
  EXPECT_EQ(snapshot.switchOf("AAAAAA-222222"), "");
  EXPECT_EQ(snapshot.switchOf(""), "");
  // The switches, and the ports of each.
  EXPECT_THAT(store.requests(), SizeIs(3));
}

TEST_F(StoreSnapshots, passOverASwitchWhosePortsCannotBeRead)
{
  store.setRecords("portStatus", R"([{"index": 1, "swxIndex": 1},
      {"index": 2, "swxIndex": 2, "ports": [{"portIndex": 5, "eid": "BBBBBB-111111"}]}])");
  EXPECT_EQ(snapshot.switchOf("BBBBBB-111111"), "EID - CCCCCC-222222");
}

// The text that the list shows is the one that the device's own tab shows.
TEST_F(StoreSnapshots, tellTheOverallStatusAsTheQuestionForOneDeviceDoes)
{
  std::string states;
  const auto add = [&states](const std::string &status, const std::string &upgrade,
                             const std::string &usage) {
    const std::string number = std::to_string(1 + std::count(states.begin(), states.end(), '{'));
    states += std::string(states.empty() ? "" : ",") + R"({"index": )" + number +
              R"(, "upgradePercent": 37)" + R"(, "status": ")" + status + R"(", "upgradeStatus": ")" +
              upgrade + R"(", "usage": ")" + usage + "\"}";
  };
  for (const char *status : {"offline", "configuring", "ready", "reset_pending", "in_recovery",
                             "dc_connected", "conflict_is_master", "isc_failure", "resetting", "garbage"})
    for (const char *upgrade : {"idle", "upgrading", "failed", "complete"})
      for (const char *usage : {"usable", "not_usable_swx_capacity", "exceeds_unmanaged_capacity"})
        add(status, upgrade, usage);
  for (const char *resource : {"rx", "tx", "swx"})
    store.setRecords(resource, "[" + states + "]");
  store.setRecords("userSession", R"([{"index": 1, "rxIndex": 25, "userIndex": 3},
                                      {"index": 2, "rxIndex": 26, "userIndex": 0}])");
  store.setRecords("connection", R"([{"index": 1, "rxIndex": 25, "txIndex": 25, "mode": "share_mode"},
                                     {"index": 2, "rxIndex": 26, "txIndex": 26, "mode": "private_mode"},
                                     {"index": 3, "rxIndex": 27, "txIndex": 27, "mode": "garbage"}])");
  const struct {
    Info_DeviceType type;
    unsigned int (Db::*ask)(unsigned int, std::string &, Db::Errors &);
  } kinds[] = {{Info_DeviceType_Rx, &Db::getRxOverallStatus},
               {Info_DeviceType_Tx, &Db::getTxOverallStatus},
               {Info_DeviceType_Swx, &Db::getSwxOverallStatus}};
  for (const auto &kind : kinds) {
    const auto devices = DeviceRecord::readAll(kind.type);
    ASSERT_TRUE(devices);
    EXPECT_THAT(*devices, SizeIs(120));
    for (const DeviceRecord &device : *devices) {
      std::string text;
      EXPECT_EQ((Db_db.*kind.ask)(device.index, text, errors), 0U);
      EXPECT_EQ(snapshot.overallStatus(device), text) << kind.type << " " << device.index;
    }
  }
}
