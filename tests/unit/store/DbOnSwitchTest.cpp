// SPDX-License-Identifier: MIT
#include "Db.h"
#include "LogCapture.h"
#include "Security.h"
#include "TestSession.h"
#include "TestStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::IsEmpty;
using testing::SizeIs;

// The store access on the simulated switch, whose rules and answers are not the test's own.
class DbOnSwitch : public testing::Test
{
protected:
  static constexpr unsigned int kOperator = 2;
  static constexpr unsigned int kDispatcher = 4; // without access to all targets

  unsigned int login(const char *username, const char *password)
  {
    return Security_loginNevoUser(username, password, userIndex, passwordIsInitialized);
  }

  // Devices that nobody uses; the lab has sessions when it starts.
  unsigned int freeReceiver(unsigned int after = 0)
  {
    return firstReady(after, [this](unsigned int rx) { return Db_db.getRxOverallStatus(rx, word, errors); });
  }
  unsigned int freeTransmitter()
  {
    return firstReady(0, [this](unsigned int tx) { return Db_db.getTxOverallStatus(tx, word, errors); });
  }

  template <typename GetStatus> unsigned int firstReady(unsigned int after, GetStatus getStatus)
  {
    for (unsigned int index = after + 1; index <= 16; ++index) {
      if (getStatus(index) == 0 && word == "??[RSnnn]Ready??")
        return index;
    }
    ADD_FAILURE() << "no device is free";
    return 0;
  }

  TestStore store;
  TestSession session;
  Db::Errors errors;
  unsigned int userIndex = 0;
  bool passwordIsInitialized = false;
  std::string word;
};

TEST_F(DbOnSwitch, logsAnAdministratorInAndOut)
{
  EXPECT_EQ(login("operator", "operator-1"), 0U);
  EXPECT_EQ(userIndex, kOperator);
  EXPECT_TRUE(passwordIsInitialized);
  EXPECT_TRUE(Db_db.userIsLoggedInToNevo(kOperator, errors));
  EXPECT_EQ(Security_logoutNevoUser(kOperator, errors), 0U);
  EXPECT_FALSE(Db_db.userIsLoggedInToNevo(kOperator, errors));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbOnSwitch, letsTheFirstAdministratorChooseAPassword)
{
  EXPECT_EQ(login("admin", "admin"), 0U);
  EXPECT_FALSE(passwordIsInitialized);
  EXPECT_EQ(Security_setPassword("admin", "n3w-Secret"), 0U);
  Security_logoutNevoUser(userIndex, errors);
  EXPECT_EQ(login("admin", "admin"), 1U);
  EXPECT_EQ(login("admin", "n3w-Secret"), 0U);
  EXPECT_TRUE(passwordIsInitialized);
}

TEST_F(DbOnSwitch, refusesWrongPasswordsDisabledAccountsAndUsersWhoAreNoAdministrators)
{
  EXPECT_EQ(login("operator", "Operator-1"), 1U);
  EXPECT_EQ(login("training", "training-8"), 1U);
  EXPECT_EQ(login("rokafor", "dispatch-3"), 1U);
  EXPECT_EQ(login("", ""), 1U);
}

TEST_F(DbOnSwitch, connectsAndDisconnectsASession)
{
  const unsigned int rx = freeReceiver();
  const unsigned int tx = freeTransmitter();
  EXPECT_EQ(Db_db.createKvmSession(kOperator, rx, tx, Info_ConnectionMode_Private, errors), 0U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(Db_db.getLoggedInUsernameFromRxIndex(rx, word, errors), 0U);
  EXPECT_EQ(word, "operator");
  EXPECT_EQ(Db_db.getConnectedUsernameFromTxIndex(tx, word, errors), 0U);
  EXPECT_EQ(word, "operator");
  EXPECT_EQ(Db_db.getSessionModeFromTxIndex(tx, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]Private only??");
  EXPECT_EQ(Db_db.getTxOverallStatus(tx, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]In use (private)??");
  EXPECT_EQ(Db_db.getRxOverallStatus(rx, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]In use??");
  EXPECT_EQ(Db_db.getSessionDurationFromRxIndex(rx, word, errors), 0U);

  unsigned int connection = 0;
  ASSERT_EQ(Db_db.findIndexOfUInt32Key("connection", "rxIndex", rx, connection, errors), 0U);
  EXPECT_EQ(Db_db.destroyKvmSession(connection, errors), 0U);
  EXPECT_FALSE(Db_db.userIsLoggedInToRx(kOperator, errors));
  EXPECT_EQ(Db_db.getTxOverallStatus(tx, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]Ready??");
}

TEST_F(DbOnSwitch, tellsWhyASessionCannotBe)
{
  const unsigned int rx = freeReceiver();
  const unsigned int tx = freeTransmitter();
  ASSERT_EQ(Db_db.createKvmSession(kOperator, rx, tx, Info_ConnectionMode_Private, errors), 0U);
  const unsigned int other = freeReceiver(rx);
  LogCapture log;
  EXPECT_EQ(Db_db.createKvmSession(kOperator, other, tx, Info_ConnectionMode_Share, errors), 1U);
  EXPECT_THAT(errors, SizeIs(1));
  EXPECT_THAT(log.text(), testing::HasSubstr("connection_topology"));
}

TEST_F(DbOnSwitch, logsAUserOutOfAllReceivers)
{
  const unsigned int first = freeReceiver();
  const unsigned int second = freeReceiver(first);
  EXPECT_EQ(Security_loginRxUser(kOperator, first, errors), 0U);
  EXPECT_EQ(Security_loginRxUser(kOperator, second, errors), 0U);
  EXPECT_TRUE(Db_db.userIsLoggedInToRx(kOperator, errors));
  EXPECT_EQ(Security_logoutUserByUserIndex(kOperator, errors), 0U);
  EXPECT_FALSE(Db_db.userIsLoggedInToRx(kOperator, errors));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbOnSwitch, findsWhereADeviceHangsAndNamesTheSwitch)
{
  unsigned int swxIndex = 0;
  unsigned int portIndex = 0;
  EXPECT_EQ(Db_db.getSwxIndexAndPortIndexFromRxIndex(16, swxIndex, portIndex, errors), 0U);
  EXPECT_EQ(swxIndex, 3U);
  EXPECT_GT(portIndex, 0U);
  EXPECT_EQ(Db_db.getSwxNameOrEidFromRxIndex(16, word, errors), 0U);
  EXPECT_EQ(word, "Annex");
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbOnSwitch, knowsItsRoleAndTheStateOfAnOfflineDevice)
{
  EXPECT_TRUE(Db_db.thisSwxIsMaster());
  EXPECT_TRUE(Db_db.thisSwxIsCascadeController());
  EXPECT_FALSE(Db_db.thisSwxIsManaged());
  EXPECT_EQ(Db_db.getRxOverallStatus(15, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]Offline??");
  EXPECT_EQ(Db_db.getSwxOverallStatus(1, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]Ready??");
  EXPECT_TRUE(Db_db.slaveSwxIsInSet({1, 2}, errors));
}

TEST_F(DbOnSwitch, knowsWhatAUserMayReach)
{
  bool allowed = true;
  unsigned int reachable = 0;
  for (unsigned int tx = 1; tx <= 16; ++tx) {
    EXPECT_EQ(Db_db.getUserTxAccessRight(kDispatcher, tx, allowed, errors), 0U);
    reachable += allowed ? 1 : 0;
  }
  EXPECT_EQ(reachable, 6U);
  EXPECT_EQ(Db_db.getUserTxAccessRight(kOperator, 16, allowed, errors), 0U);
  EXPECT_TRUE(allowed);
  EXPECT_EQ(Db_db.getUserRoleFromUserIndex(kOperator, word, errors), 0U);
  EXPECT_EQ(word, "??[RSnnn]Admin??");
  EXPECT_EQ(Db_db.getAllowedAccessModeFromUserIndex(kDispatcher, word, errors), 0U);
  EXPECT_EQ(word, "share_or_private_mode");
}

TEST_F(DbOnSwitch, seesAWriteAndTheCounterThatMovesWithIt)
{
  unsigned int lastChange = 0;
  EXPECT_TRUE(Db_db.newDataIsAvailable(InfoMgr_InfoID_Rx, lastChange));
  EXPECT_FALSE(Db_db.newDataIsAvailable(InfoMgr_InfoID_Rx, lastChange));
  EXPECT_EQ(Db_db.writeString("rx", 1, "location", "<b>Row 9</b>", errors), 0U);
  EXPECT_TRUE(Db_db.newDataIsAvailable(InfoMgr_InfoID_Rx, lastChange));
  EXPECT_EQ(Db_db.readString("rx", 1, "location", word, errors), 0U);
  EXPECT_EQ(word, "<b>Row 9</b>");
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbOnSwitch, sendsCommands)
{
  char edid[256] = {};
  EXPECT_EQ(Db_db.pullEdidFromDevice("rx", 1, "Pulled", "From desk 1", errors), 0U);
  EXPECT_EQ(Db_db.getEdidByName("Pulled", edid, sizeof edid, errors), 0U);
  EXPECT_EQ(std::string(edid, 8), std::string("\0\xff\xff\xff\xff\xff\xff\0", 8));
  EXPECT_EQ(Db_db.pushEdidToTx(1, 1, errors), 0U);
  EXPECT_EQ(Db_db.getTxEidFromTxIndex(1, word, errors), 0U);
  EXPECT_EQ(Db_db.triggerLcdBacklightFlash("txControl", word, 0, errors), 0U);
  unsigned int index = 0;
  EXPECT_EQ(Db_db.createUpgradeRecord("ftp", "192.0.2.1", "rx.bin", "", "", index, errors), 0U);
  EXPECT_GT(index, 0U);
  EXPECT_EQ(Db_db.ackAllAlerts(errors), 0U);
  EXPECT_EQ(Db_db.clearAllHistoricalAlerts(errors), 0U);
  EXPECT_EQ(Db_db.requestDeviceReboot("rx", 2, errors), 0U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbOnSwitch, knowsWhatTheMonitorsOfTheLibrarySayOfThemselves)
{
  std::string manufacturer;
  std::string productCode;
  std::string type;
  EXPECT_EQ(Db_db.getEdidInfo(1, manufacturer, productCode, type, errors), 0U);
  EXPECT_THAT(manufacturer, testing::MatchesRegex("[A-Z][A-Z][A-Z]"));
  EXPECT_THAT(productCode, testing::MatchesRegex("[0-9A-F]+"));
  EXPECT_THAT(type, testing::AnyOf("[RSnnn]DVI", "[RSnnn]VGA"));
  EXPECT_EQ(Db_db.getEdidInfo(4000, manufacturer, productCode, type, errors), 1U);
}

TEST_F(DbOnSwitch, comesBackWhenTheStoreDoes)
{
  EXPECT_EQ(Db_db.getTxNameFromTxIndex(1, word, errors), 0U);
  store.kill();
  EXPECT_EQ(Db_db.getTxNameFromTxIndex(1, word, errors), 1U);
  store.restart();
  EXPECT_EQ(Db_db.getTxNameFromTxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, "SCADA Primary");
  EXPECT_THAT(errors, IsEmpty());
}
