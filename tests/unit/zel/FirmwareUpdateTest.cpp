// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "life/FirmwareFile.h"

#include <fstream>

namespace
{

class FirmwareUpdate : public StoreTest
{
protected:
  unsigned source(const std::string &file, const char *protocol = "ftp")
  {
    unsigned index = 0;
    const bool isLocal = std::string(protocol) == "file";
    EXPECT_EQ(0, create("upgrade",
                        {{"protocol", protocol},
                         {"location", isLocal ? "" : "10.0.0.9"},
                         {"filename", file},
                         {"username", ""},
                         {"password", ""}},
                        &index));
    return index;
  }

  // The outcome of an update of a receiver from that file.
  std::string outcomeOf(const std::string &file, const char *protocol = "ftp")
  {
    EXPECT_EQ(0, set("systemGlobals", 0, {{"resetAfterUpgrade", "disabled"}}));
    EXPECT_EQ(0, set("rx", 2, {{"upgradeIndex", source(file, protocol)}}));
    pass(30);
    return text("rx", 2, "upgradeStatus");
  }
};

TEST_F(FirmwareUpdate, countsUpAndLeavesTheRebootToThePersonWhereSoSet)
{
  ASSERT_EQ(0, set("systemGlobals", 0, {{"resetAfterUpgrade", "disabled"}}));
  const unsigned record = source("rx-5.0.2.bin");
  ASSERT_EQ(0, set("rx", 2, {{"upgradeIndex", record}}));
  EXPECT_EQ("upgrading", text("rx", 2, "upgradeStatus"));
  pass(8);
  const unsigned percent = number("rx", 2, "upgradePercent");
  EXPECT_GE(percent, 40u);
  EXPECT_LE(percent, 50u);
  EXPECT_EQ("rx", text("upgrade", record, "deviceType"));
  EXPECT_EQ("5.0.2", text("upgrade", record, "version"));
  pass(20);
  EXPECT_EQ("complete", text("rx", 2, "upgradeStatus"));
  EXPECT_EQ("4.2.1", text("rx", 2, "firmwareVersion"));
  ASSERT_EQ(0, set("rx", 2, {{"reset", "cold_reboot"}}));
  pass(10);
  EXPECT_EQ("idle", text("rx", 2, "upgradeStatus"));
  EXPECT_EQ("5.0.2", text("rx", 2, "firmwareVersion"));
}

TEST_F(FirmwareUpdate, rebootsByItselfWhereSoSet)
{
  ASSERT_EQ(0, set("tx", 3, {{"upgradeIndex", source("tx-5.0.2.bin")}}));
  pass(60);
  EXPECT_EQ("idle", text("tx", 3, "upgradeStatus"));
  EXPECT_EQ("5.0.2", text("tx", 3, "firmwareVersion"));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Firmware update of Historian to version 5.0.2 succeeded."));
}

TEST_F(FirmwareUpdate, failsInEachOfItsWays)
{
  EXPECT_EQ("failed_file_get", outcomeOf("rx-missing.bin"));
  EXPECT_EQ("failed_file_content", outcomeOf("rx-corrupt.bin"));
  EXPECT_EQ("failed_dev_type", outcomeOf("tx-5.0.2.bin"));
  EXPECT_EQ("failed_file_push", outcomeOf("rx-push-error.bin"));
  EXPECT_EQ("failed_flash", outcomeOf("rx-flash-error.bin"));
  EXPECT_EQ("failed", outcomeOf("rx-unknown-error.bin"));
  EXPECT_TRUE(hasAlert("unacknowledgedAlerts", "Firmware update of Desk 2 Dispatch failed: file transfer."));
}

TEST_F(FirmwareUpdate, failsAsOrderedOnce)
{
  ASSERT_FALSE(store.control({"fail-update", "rx", "2", "failed_flash"}).failed);
  EXPECT_EQ("failed_flash", outcomeOf("rx-5.0.2.bin"));
  EXPECT_EQ("complete", outcomeOf("rx-5.0.3.bin"));
}

TEST_F(FirmwareUpdate, ofALocalFileNeedsTheFile)
{
  const std::string empty = store.directory() + "/rx-1.0.bin", good = store.directory() + "/rx-2.0.bin";
  std::ofstream(empty).flush();
  std::ofstream(good) << "firmware";
  EXPECT_EQ("failed_file_get", outcomeOf(store.directory() + "/rx-9.9.bin", "file"));
  EXPECT_EQ("failed_file_content", outcomeOf(empty, "file"));
  EXPECT_EQ("complete", outcomeOf(good, "file"));
}

TEST_F(FirmwareUpdate, isRefusedForDevicesThatCannotTakeIt)
{
  const unsigned record = source("rx-5.0.2.bin");
  EXPECT_EQ(1108, set("rx", 15, {{"upgradeIndex", record}}));
  EXPECT_EQ(7, set("rx", 2, {{"upgradeIndex", 99u}}));
  ASSERT_EQ(0, set("rx", 2, {{"upgradeIndex", record}}));
  EXPECT_EQ(1014, set("rx", 2, {{"upgradeIndex", record}}));
  EXPECT_EQ(1014, set("rx", 2, {{"reset", "cold_reboot"}}));
  EXPECT_EQ(1014, remove("upgrade", record));
}

TEST_F(FirmwareUpdate, hasAtMostEightSources)
{
  for (unsigned i = rows("upgrade"); i < 8; ++i)
    source("rx-1.0." + std::to_string(i) + ".bin");
  EXPECT_EQ(8, create("upgrade", {{"protocol", "ftp"}, {"location", "x"}, {"filename", "y"}}));
  EXPECT_EQ(8u, rows("upgrade"));
}

TEST_F(FirmwareUpdate, needsAFileAndForOtherThanLocalOnesAServer)
{
  EXPECT_EQ(1007, create("upgrade", {{"protocol", "ftp"}, {"location", "x"}}));
  EXPECT_EQ(1007, create("upgrade", {{"protocol", "ftp"}, {"location", ""}, {"filename", "y"}}));
  EXPECT_EQ(12, create("upgrade", {{"protocol", "gopher"}, {"location", "x"}, {"filename", "y"}}));
}

TEST_F(FirmwareUpdate, goesOnAfterTheStoreWasKilled)
{
  ASSERT_EQ(0, set("tx", 3, {{"upgradeIndex", source("tx-5.0.2.bin")}}));
  pass(5);
  store.kill();
  store.restart();
  reconnect();
  pass(60);
  EXPECT_EQ("5.0.2", text("tx", 3, "firmwareVersion"));
}

TEST(FirmwareFile, nameTellsDeviceAndVersion)
{
  EXPECT_EQ("rx", zelsim::deviceTypeOfFile("/tmp/rx-4.3.0.bin"));
  EXPECT_EQ("swx", zelsim::deviceTypeOfFile("swx-1.bin"));
  EXPECT_EQ("", zelsim::deviceTypeOfFile("firmware.bin"));
  EXPECT_EQ("4.3.0", zelsim::versionOfFile("a/b2/rx-4.3.0.bin"));
  EXPECT_EQ("", zelsim::versionOfFile("rx-43.bin"));
  EXPECT_EQ("", zelsim::versionOfFile(""));
}

} // namespace
