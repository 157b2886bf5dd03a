// SPDX-License-Identifier: MIT
#include "AlertRecord.h"
#include "DeviceRecord.h"
#include "MonitorRecord.h"
#include "PortRecord.h"
#include "StoreTest.h"
#include "TargetRights.h"
#include "UserRecord.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

using Records = StoreTest;

TEST_F(Records, ofUsersHoldWhatTheirListShows)
{
  store.setRecords("user", R"([{"index": 3, "name": "anna", "fullName": "Anna A.", "role": "admin"},
                               {"index": 4, "name": "", "mgrName": "m-bert", "role": "user"},
                               {"index": 5, "role": "garbage"}])");
  const auto users = UserRecord::readAll();
  ASSERT_TRUE(users);
  ASSERT_THAT(*users, SizeIs(3));
  EXPECT_EQ((*users)[0].index, 3U);
  EXPECT_EQ((*users)[0].shownName(), "anna");
  EXPECT_EQ((*users)[0].fullName, "Anna A.");
  EXPECT_EQ((*users)[0].role, Info_UserRole_Admin);
  EXPECT_EQ((*users)[1].shownName(), "m-bert");
  EXPECT_EQ((*users)[1].role, Info_UserRole_User);
  EXPECT_EQ((*users)[2].shownName(), "");
  EXPECT_EQ((*users)[2].role, 0);
  EXPECT_THAT(store.requests(), ElementsAre(R"({"method":"GET","resource":"user",)"
                                            R"("select":["index","name","mgrName","fullName","role"]})"));
}

TEST_F(Records, ofUsersHoldTheirAllowedModeWhereItIsAskedFor)
{
  store.setRecords("user", R"([{"index": 3, "name": "anna", "modeAllowed": "private_mode"}])");
  EXPECT_EQ(UserRecord::readWithAllowedMode()->front().modeAllowed, Info_AccessMode_Private);
  EXPECT_THAT(store.requests(), ElementsAre(R"({"method":"GET","resource":"user",)"
                                            R"("select":["index","name","mgrName","modeAllowed"]})"));
}

TEST_F(Records, ofDevicesHoldTheStoresWords)
{
  for (const char *resource : {"rx", "tx", "swx"})
    store.setRecords(resource, std::string(R"([{"index": 4, "eid": "AAAAAA-000004", "name": ")") + resource +
                                   R"(", "detailedDeviceType": "tx_vga", "firmwareVersion": "1.2",
                                       "status": "ready", "upgradeStatus": "idle", "usage": "usable",
                                       "upgradePercent": 7, "modeAllowed": "share_mode"}])");
  const std::pair<Info_DeviceType, const char *> kinds[] = {
      {Info_DeviceType_Rx, "rx"}, {Info_DeviceType_Tx, "tx"}, {Info_DeviceType_Swx, "swx"}};
  for (const auto &[type, resource] : kinds) {
    const auto devices = DeviceRecord::readAll(type);
    ASSERT_TRUE(devices);
    ASSERT_THAT(*devices, SizeIs(1));
    const DeviceRecord &device = devices->front();
    EXPECT_EQ(device.type, type);
    EXPECT_EQ(device.index, 4U);
    EXPECT_EQ(device.eid, "AAAAAA-000004");
    EXPECT_EQ(device.name, resource);
    EXPECT_EQ(device.detailedType, "tx_vga");
    EXPECT_EQ(device.firmwareVersion, "1.2");
    EXPECT_EQ(device.status, "ready");
    EXPECT_EQ(device.upgradeStatus, "idle");
    EXPECT_EQ(device.usage, "usable");
    EXPECT_EQ(device.upgradePercent, 7U);
    EXPECT_EQ(device.modeAllowed, "share_mode");
  }
  EXPECT_THAT(store.requests(), SizeIs(3));
}

TEST_F(Records, ofNoKindOfDeviceAreUnread)
{
  EXPECT_FALSE(DeviceRecord::readAll(Info_DeviceType_None));
  EXPECT_FALSE(DeviceName::readAll(Info_DeviceType_None));
  EXPECT_THAT(store.requests(), IsEmpty());
}

TEST_F(Records, ofPortsAreThoseOfTheSwitch)
{
  store.setRecords("portStatus", R"([
      {"index": 1, "swxIndex": 1, "ports": [{"portIndex": 1, "portState": "unused"}]},
      {"index": 2, "swxIndex": 2, "ports": [
          {"portIndex": 5, "remotePort": 9, "deviceType": "swx", "eid": "CCCCCC-000001", "portState": "active"},
          {"portIndex": 6}]}])");
  const auto ports = PortRecord::readOfSwitch(2);
  ASSERT_TRUE(ports);
  ASSERT_THAT(*ports, SizeIs(2));
  EXPECT_EQ((*ports)[0].portIndex, 5U);
  EXPECT_EQ((*ports)[0].remotePort, 9U);
  EXPECT_EQ((*ports)[0].deviceType, "swx");
  EXPECT_EQ((*ports)[0].eid, "CCCCCC-000001");
  EXPECT_EQ((*ports)[0].portState, "active");
  EXPECT_EQ((*ports)[1].portIndex, 6U);
  EXPECT_EQ((*ports)[1].eid, "");
  store.hangUp("GET", "portStatus");
  EXPECT_FALSE(PortRecord::readOfSwitch(2));
}

TEST_F(Records, ofMonitorsTellWhatTheirDataSays)
{
  // A block of zeros is one of an analog monitor of no manufacturer.
  store.setRecords("edid", R"([{"index": 1, "name": "Wall", "description": "Big", "isProtected": "is_true"},
                               {"index": 2, "name": "Desk", "isProtected": "is_false"}])");
  const auto monitors = MonitorRecord::readAll();
  ASSERT_TRUE(monitors);
  ASSERT_THAT(*monitors, SizeIs(2));
  EXPECT_EQ((*monitors)[0].index, 1U);
  EXPECT_EQ((*monitors)[0].name, "Wall");
  EXPECT_EQ((*monitors)[0].description, "Big");
  EXPECT_TRUE((*monitors)[0].isProtected);
  EXPECT_FALSE((*monitors)[1].isProtected);
  EXPECT_EQ((*monitors)[1].manufacturer, "@@@");
  EXPECT_EQ((*monitors)[1].productCode, "0000");
  EXPECT_EQ((*monitors)[1].typeKey, "[RSnnn]VGA");
  EXPECT_THAT(store.requests(), SizeIs(1));
}

TEST_F(Records, ofAlertsTellAMissingOriginatorFromAnEmptyOne)
{
  store.setRecords("historicalAlerts", R"([
      {"instanceId": 8, "date": 1000000000, "severity": "error", "originatorEid": "", "alertMsg": "Fan"},
      {"instanceId": 7, "severity": "garbage"}])");
  const auto alerts = AlertRecord::readHistory();
  ASSERT_TRUE(alerts);
  ASSERT_THAT(*alerts, SizeIs(2));
  EXPECT_EQ((*alerts)[0].instanceId, 8U);
  EXPECT_EQ((*alerts)[0].date, 1000000000);
  EXPECT_EQ((*alerts)[0].severityText(), shown("Error"));
  EXPECT_EQ((*alerts)[0].originatorEid, "");
  EXPECT_EQ((*alerts)[0].message, "Fan");
  EXPECT_FALSE((*alerts)[1].originatorEid);
  EXPECT_EQ((*alerts)[1].severityText(), shown("Unknown"));
  store.hangUp("GET", "unacknowledgedAlerts");
  EXPECT_FALSE(AlertRecord::readUnacknowledged());
}

TEST_F(Records, ofTargetRightsAllowTheListedTransmittersOrAll)
{
  store.setRecords("user", R"([{"index": 3, "allTargetAccess": "disabled"},
                               {"index": 4, "allTargetAccess": "enabled"}])");
  store.setRecords("userTargetList", R"([{"index": 3, "target": [{"txIndex": 4}, {"txIndex": 9}]}])");
  const auto some = TargetRights::read(3, errors);
  ASSERT_TRUE(some);
  EXPECT_TRUE(some->allow(4));
  EXPECT_TRUE(some->allow(9));
  EXPECT_FALSE(some->allow(5));
  EXPECT_TRUE(TargetRights::read(4, errors)->allow(5));
  store.hangUp("GET", "userTargetList");
  EXPECT_FALSE(TargetRights::read(3, errors));
  EXPECT_FALSE(TargetRights::read(9, errors));
}
