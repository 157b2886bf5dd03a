// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

std::string deviceRecord(const std::string &status, const std::string &upgradeStatus,
                         const std::string &usage)
{
  return R"([{"index": 4, "upgradePercent": 37, "status": ")" + status + R"(", "upgradeStatus": ")" +
         upgradeStatus + R"(", "usage": ")" + usage + "\"}]";
}

} // namespace

class DbStatus : public StoreTest
{
protected:
  void logInAtReceiver()
  {
    store.setRecords("userSession", R"([{"index": 1, "rxIndex": 4, "userIndex": 3}])");
  }

  void connectTransmitter(const std::string &mode)
  {
    store.setRecords("connection", R"([{"index": 8, "txIndex": 4, "rxIndex": 2, "mode": ")" + mode + "\"}]");
  }

  std::string rx(const std::string &status, const std::string &upgradeStatus = "idle",
                 const std::string &usage = "usable")
  {
    store.setRecords("rx", deviceRecord(status, upgradeStatus, usage));
    std::string overall;
    EXPECT_EQ(Db_db.getRxOverallStatus(4, overall, errors), 0U);
    return overall;
  }

  std::string tx(const std::string &status, const std::string &upgradeStatus = "idle",
                 const std::string &usage = "usable")
  {
    store.setRecords("tx", deviceRecord(status, upgradeStatus, usage));
    std::string overall;
    EXPECT_EQ(Db_db.getTxOverallStatus(4, overall, errors), 0U);
    return overall;
  }

  std::string swx(const std::string &status, const std::string &upgradeStatus = "idle",
                  const std::string &usage = "usable")
  {
    store.setRecords("swx", deviceRecord(status, upgradeStatus, usage));
    std::string overall;
    EXPECT_EQ(Db_db.getSwxOverallStatus(4, overall, errors), 0U);
    return overall;
  }
};

TEST_F(DbStatus, ofAReceiverFollowsItsStatusWord)
{
  EXPECT_EQ(rx("offline"), shown("Offline"));
  EXPECT_EQ(rx("configuring"), shown("Configuring"));
  EXPECT_EQ(rx("ready"), shown("Ready"));
  EXPECT_EQ(rx("reset_pending"), shown("Reboot pending"));
  EXPECT_EQ(rx("in_recovery"), shown("In recovery"));
  EXPECT_EQ(rx("garbage"), shown("Offline"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbStatus, ofAnIdleReceiverPutsRebootBeforeUseAndUseBeforeCapacity)
{
  EXPECT_EQ(rx("ready", "idle", "not_usable_swx_capacity"), shown("ReadyInSwitchExceedingCapacity"));
  EXPECT_EQ(rx("ready", "idle", "not_usable_swx_maintenance"), shown("Ready"));
  logInAtReceiver();
  EXPECT_EQ(rx("ready", "idle", "not_usable_swx_capacity"), shown("In use"));
  EXPECT_EQ(rx("reset_pending", "idle", "not_usable_swx_capacity"), shown("Reboot pending"));
}

TEST_F(DbStatus, ofADeviceThatUpdatesShowsThePercentageAlsoWhileAResetIsPending)
{
  EXPECT_EQ(rx("reset_pending", "upgrading"), shown("Updating firmware") + " (37%)");
  EXPECT_EQ(rx("ready", "upgrading"), shown("Updating firmware") + " (37%)");
  EXPECT_EQ(tx("ready", "upgrading"), shown("Updating firmware") + " (37%)");
}

TEST_F(DbStatus, showsAPercentageThatIsNotThereAsZero)
{
  store.setRecords("tx",
                   R"([{"index": 4, "status": "ready", "upgradeStatus": "upgrading", "usage": "usable"}])");
  std::string overall;
  EXPECT_EQ(Db_db.getTxOverallStatus(4, overall, errors), 0U);
  EXPECT_EQ(overall, shown("Updating firmware") + " (0%)");
}

TEST_F(DbStatus, namesEachWayInWhichAnUpdateFailsOrEnds)
{
  EXPECT_EQ(rx("ready", "failed"), shown("Firmware update failed"));
  EXPECT_EQ(rx("ready", "failed_file_get"), shown("Firmware update failed - file transfer"));
  EXPECT_EQ(rx("ready", "failed_file_content"), shown("Firmware update failed - bad file"));
  EXPECT_EQ(tx("ready", "failed_dev_type"), shown("Firmware update failed - incorrect file"));
  EXPECT_EQ(tx("ready", "failed_file_push"), shown("Firmware update failed - target communication"));
  EXPECT_EQ(tx("ready", "failed_flash"), shown("Firmware update failed - reflash"));
  EXPECT_EQ(swx("ready", "complete"), shown("Firmware updated, needs reboot"));
  EXPECT_EQ(rx("offline", "failed"), shown("Offline"));
}

TEST_F(DbStatus, ofATransmitterTellsHowItIsConnected)
{
  EXPECT_EQ(tx("ready"), shown("Ready"));
  EXPECT_EQ(tx("ready", "idle", "not_usable_swx_capacity"), shown("ReadyInSwitchExceedingCapacity"));
  connectTransmitter("share_mode");
  EXPECT_EQ(tx("ready", "idle", "not_usable_swx_capacity"), shown("In use (shared)"));
  connectTransmitter("private_mode");
  EXPECT_EQ(tx("ready"), shown("In use (private)"));
  EXPECT_EQ(tx("reset_pending"), shown("Reboot pending"));
  connectTransmitter("garbage");
  EXPECT_EQ(tx("ready"), shown("In use"));
}

TEST_F(DbStatus, ofASwitchFollowsItsStatusWord)
{
  EXPECT_EQ(swx("offline"), shown("Offline"));
  EXPECT_EQ(swx("offline", "idle", "exceeds_unmanaged_capacity"), shown("OfflineExceedsUnmanagedCapacity"));
  EXPECT_EQ(swx("dc_connected"), shown("Connected"));
  EXPECT_EQ(swx("conflict_is_master"), shown("Conflict (Mode is Master)"));
  EXPECT_EQ(swx("conflict_other_master"), shown("Conflict (another Switch is Master)"));
  EXPECT_EQ(swx("isc_failure"), shown("Network communication error"));
  EXPECT_EQ(swx("ready"), shown("Ready"));
  EXPECT_EQ(swx("ready", "idle", "exceeds_unmanaged_capacity"), shown("ReadyExceedsUnmanagedCapacity"));
  EXPECT_EQ(swx("ready", "idle", "maintenance"), shown("Ready"));
  EXPECT_EQ(swx("resetting"), shown("Resetting"));
  EXPECT_EQ(swx("garbage"), shown("Offline"));
}

TEST_F(DbStatus, ofASwitchThatUpdatesShowsNoPercentage)
{
  EXPECT_EQ(swx("ready", "upgrading"), shown("Updating firmware"));
}

TEST_F(DbStatus, isUnknownAndAFailureWhereItCannotBeRead)
{
  std::string overall = "before";
  EXPECT_EQ(Db_db.getRxOverallStatus(4, overall, errors), 1U);
  EXPECT_EQ(overall, shown("Unknown"));
  overall = "before";
  EXPECT_EQ(Db_db.getTxOverallStatus(4, overall, errors), 1U);
  EXPECT_EQ(overall, shown("Unknown"));
  overall = "before";
  EXPECT_EQ(Db_db.getSwxOverallStatus(4, overall, errors), 1U);
  EXPECT_EQ(overall, shown("Unknown"));
  EXPECT_EQ(errors.size(), 3U);
}

TEST_F(DbStatus, givesTheRawStatesOfAReceiver)
{
  auto status = Info_DeviceStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_DeviceUsage_Usable;
  bool userIsLoggedIn = true;
  store.setRecords("rx", deviceRecord("in_recovery", "failed_flash", "not_usable_swx_maintenance"));
  EXPECT_EQ(Db_db.getRxStatus(4, status, upgradeStatus, usage, userIsLoggedIn, errors), 0U);
  EXPECT_EQ(status, Info_DeviceStatus_InRecovery);
  EXPECT_EQ(upgradeStatus, Info_DeviceUpgradeStatus_FailedFlash);
  EXPECT_EQ(usage, Info_DeviceUsage_NotUsableSwxMaintenance);
  EXPECT_FALSE(userIsLoggedIn);
  logInAtReceiver();
  EXPECT_EQ(Db_db.getRxStatus(4, status, upgradeStatus, usage, userIsLoggedIn, errors), 0U);
  EXPECT_TRUE(userIsLoggedIn);
}

TEST_F(DbStatus, givesTheRawStatesOfASwitch)
{
  auto status = Info_SwxStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_SwxUsage_Usable;
  store.setRecords("swx", deviceRecord("isc_failure", "complete", "exceeds_unmanaged_capacity"));
  EXPECT_EQ(Db_db.getSwxStatus(4, status, upgradeStatus, usage, errors), 0U);
  EXPECT_EQ(status, Info_SwxStatus_IscFailure);
  EXPECT_EQ(upgradeStatus, Info_DeviceUpgradeStatus_Complete);
  EXPECT_EQ(usage, Info_SwxUsage_ExceedsUnmanagedCapacity);
}

TEST_F(DbStatus, leavesTheOutputsBehindAFailedReadUntouched)
{
  auto status = Info_DeviceStatus_Ready;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Complete;
  auto usage = Info_DeviceUsage_NotUsableSwxCapacity;
  bool userIsLoggedIn = true;
  EXPECT_EQ(Db_db.getRxStatus(4, status, upgradeStatus, usage, userIsLoggedIn, errors), 1U);
  EXPECT_EQ(status, Info_DeviceStatus_Ready);
  EXPECT_EQ(upgradeStatus, Info_DeviceUpgradeStatus_Complete);
  EXPECT_EQ(usage, Info_DeviceUsage_NotUsableSwxCapacity);
  EXPECT_TRUE(userIsLoggedIn);
}

TEST_F(DbStatus, givesTheModeOfATransmittersConnection)
{
  auto status = Info_DeviceStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_DeviceUsage_Usable;
  bool isConnected = true;
  auto mode = Info_ConnectionMode_Share;
  store.setRecords("tx", deviceRecord("ready", "idle", "usable"));
  EXPECT_EQ(Db_db.getTxStatus(4, status, upgradeStatus, usage, isConnected, mode, errors), 0U);
  EXPECT_FALSE(isConnected);
  EXPECT_EQ(mode, Info_ConnectionMode_Share);
  connectTransmitter("private_mode");
  EXPECT_EQ(Db_db.getTxStatus(4, status, upgradeStatus, usage, isConnected, mode, errors), 0U);
  EXPECT_TRUE(isConnected);
  EXPECT_EQ(mode, Info_ConnectionMode_Private);
  connectTransmitter("garbage");
  EXPECT_EQ(Db_db.getTxStatus(4, status, upgradeStatus, usage, isConnected, mode, errors), 0U);
  EXPECT_EQ(static_cast<int>(mode), 0);
}
