// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;

using DbRole = StoreTest;
using DbChange = StoreTest;

TEST_F(DbChange, isNewUntilTheCounterHasCaughtUp)
{
  store.setRecords("changeStatus", R"([{"index": 6, "lastChange": 40}])");
  unsigned int lastChange = 0;
  EXPECT_TRUE(Db_db.newDataIsAvailable(InfoMgr_InfoID_User, lastChange));
  EXPECT_EQ(lastChange, 40U);
  EXPECT_FALSE(Db_db.newDataIsAvailable(InfoMgr_InfoID_User, lastChange));
  EXPECT_EQ(lastChange, 40U);
  store.setRecords("changeStatus", R"([{"index": 6, "lastChange": 41}])");
  EXPECT_TRUE(Db_db.newDataIsAvailable(InfoMgr_InfoID_User, lastChange));
  EXPECT_EQ(lastChange, 41U);
  EXPECT_THAT(store.requests().front(),
              R"({"method":"GET","query":{"index":6},"resource":"changeStatus","select":["lastChange"]})");
}

TEST_F(DbChange, isNotNewWhereTheStoresCounterIsBehind)
{
  store.setRecords("changeStatus", R"([{"index": 6, "lastChange": 40}])");
  unsigned int lastChange = 50;
  EXPECT_FALSE(Db_db.newDataIsAvailable(InfoMgr_InfoID_User, lastChange));
  EXPECT_EQ(lastChange, 50U);
}

TEST_F(DbChange, isTakenForNewWhenTheStoreCannotSay)
{
  store.hangUp("GET", "changeStatus");
  unsigned int lastChange = 50;
  EXPECT_TRUE(Db_db.newDataIsAvailable(InfoMgr_InfoID_User, lastChange));
  EXPECT_EQ(lastChange, 50U);
}

TEST_F(DbRole, isManagedForEverySettingButNonManaged)
{
  store.setRecords("systemGlobals", R"({"managedSetting": "non_managed"})");
  EXPECT_FALSE(Db_db.thisSwxIsManaged());
  store.setRecords("systemGlobals", R"({"managedSetting": "verified"})");
  EXPECT_TRUE(Db_db.thisSwxIsManaged());
  store.setRecords("systemGlobals", R"({"managedSetting": "whatever"})");
  EXPECT_TRUE(Db_db.thisSwxIsManaged());
}

TEST_F(DbRole, isNotManagedWhenTheStoreCannotSayAndThatIsLogged)
{
  store.hangUp("GET", "systemGlobals");
  LogCapture log;
  EXPECT_FALSE(Db_db.thisSwxIsManaged());
  EXPECT_EQ(log.text(), "1 thisSwxIsManaged: Unable to read Managed setting.\n");
}

TEST_F(DbRole, isReadFromTheRecordOfThisSwitch)
{
  store.setRecords("swx", R"([{"index": 2, "cascadeRole": "backup", "mode": "slave"},
                              {"index": 1, "cascadeRole": "controller", "mode": "master"}])");
  EXPECT_TRUE(Db_db.thisSwxIsCascadeController());
  EXPECT_FALSE(Db_db.thisSwxIsBackupCascadeController());
  EXPECT_TRUE(Db_db.thisSwxIsMaster());
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"GET","query":{"index":1},"resource":"swx","select":["cascadeRole"]})",
                          R"({"method":"GET","query":{"index":1},"resource":"swx","select":["cascadeRole"]})",
                          R"({"method":"GET","query":{"index":1},"resource":"swx","select":["mode"]})"));
  store.setRecords("swx", R"([{"index": 1, "cascadeRole": "backup", "mode": "slave"}])");
  EXPECT_FALSE(Db_db.thisSwxIsCascadeController());
  EXPECT_TRUE(Db_db.thisSwxIsBackupCascadeController());
  EXPECT_FALSE(Db_db.thisSwxIsMaster());
}

TEST_F(DbRole, isNoneWhenTheStoreCannotSay)
{
  store.hangUp("GET", "swx");
  EXPECT_FALSE(Db_db.thisSwxIsCascadeController());
  EXPECT_FALSE(Db_db.thisSwxIsBackupCascadeController());
  EXPECT_FALSE(Db_db.thisSwxIsMaster());
}
