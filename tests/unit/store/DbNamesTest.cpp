// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::IsEmpty;

class DbNames : public StoreTest
{
protected:
  DbNames()
  {
    store.setRecords("rx", R"([{"index": 1, "name": "Desk", "eid": "AAAAAA-111111", "keyboardLayout": "de"},
                               {"index": 2, "name": "", "eid": "AAAAAA-222222"}])");
    store.setRecords("tx", R"([{"index": 1, "name": "Server", "eid": "BBBBBB-111111"},
                               {"index": 2, "name": "", "eid": "BBBBBB-222222"}])");
    store.setRecords("swx", R"([{"index": 1, "name": "Main", "eid": "CCCCCC-111111"},
                                {"index": 2, "name": "", "eid": "CCCCCC-222222"}])");
    store.setRecords("user", R"([{"index": 3, "name": "anna", "fullName": "Anna B.", "mgrName": "m-anna"},
                                 {"index": 4, "name": "", "mgrName": "m-ben"}])");
    store.setRecords("userSession", R"([{"index": 21, "rxIndex": 1, "userIndex": 3},
                                        {"index": 22, "rxIndex": 2, "userIndex": 4},
                                        {"index": 23, "rxIndex": 9, "userIndex": 99}])");
    store.setRecords("connection", R"([{"index": 31, "rxIndex": 1, "txIndex": 2},
                                       {"index": 32, "rxIndex": 2, "txIndex": 1}])");
  }
  std::string name = "before";
};

TEST_F(DbNames, areReadFromTheRecordsParameters)
{
  EXPECT_EQ(Db_db.getRxNameFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "Desk");
  EXPECT_EQ(Db_db.getTxNameFromTxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "Server");
  EXPECT_EQ(Db_db.getTxEidFromTxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "BBBBBB-222222");
  EXPECT_EQ(Db_db.getSwxEidFromSwxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "CCCCCC-222222");
  EXPECT_EQ(Db_db.getUsernameFromUserIndex(3, name, errors), 0U);
  EXPECT_EQ(name, "anna");
  EXPECT_EQ(Db_db.getUserFullNameFromUserIndex(3, name, errors), 0U);
  EXPECT_EQ(name, "Anna B.");
}

TEST_F(DbNames, fallBackToTheEidForADeviceWithoutAName)
{
  EXPECT_EQ(Db_db.getRxNameOrEidFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "Desk");
  EXPECT_EQ(Db_db.getRxNameOrEidFromRxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "EID - AAAAAA-222222");
  EXPECT_EQ(Db_db.getTxNameOrEidFromTxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "EID - BBBBBB-222222");
  EXPECT_EQ(Db_db.getSwxNameOrEidFromSwxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "EID - CCCCCC-222222");
}

TEST_F(DbNames, failWhereNeitherNameNorEidCanBeRead)
{
  EXPECT_EQ(Db_db.getRxNameOrEidFromRxIndex(9, name, errors), 1U);
  EXPECT_EQ(name, "before");
}

TEST_F(DbNames, ofATransmitterFollowTheUserSessionToItsConnection)
{
  EXPECT_EQ(Db_db.getTxNameOrEidFromUsrSesIndex(21, name, errors), 0U);
  EXPECT_EQ(name, "EID - BBBBBB-222222");
  EXPECT_EQ(Db_db.getTxNameOrEidFromUsrSesIndex(22, name, errors), 0U);
  EXPECT_EQ(name, "Server");
  name = "before";
  EXPECT_EQ(Db_db.getTxNameOrEidFromUsrSesIndex(23, name, errors), 1U);
  EXPECT_EQ(Db_db.getTxNameOrEidFromUsrSesIndex(99, name, errors), 1U);
  EXPECT_EQ(name, "before");
}

TEST_F(DbNames, ofAKeyboardLayoutIsUnknownWithoutAFailureWhereItCannotBeRead)
{
  EXPECT_EQ(Db_db.getKeyboardLayoutFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "de");
  EXPECT_EQ(Db_db.getKeyboardLayoutFromRxIndex(9, name, errors), 0U);
  EXPECT_EQ(name, "unknown");
}

TEST_F(DbNames, ofALoggedInUserIsTheManagersNameWhereTheUserHasNone)
{
  EXPECT_EQ(Db_db.getLoggedInUsernameFromRxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "anna");
  EXPECT_EQ(Db_db.getLoggedInUsernameFromRxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "m-ben");
}

TEST_F(DbNames, ofALoggedInUserFailsWithoutALoginAndWithoutAUser)
{
  EXPECT_EQ(Db_db.getLoggedInUsernameFromRxIndex(5, name, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(Db_db.getLoggedInUsernameFromRxIndex(9, name, errors), 1U);
  EXPECT_EQ(name, "before");
}

TEST_F(DbNames, ofAConnectedUserFollowTheTransmitterToItsReceiver)
{
  EXPECT_EQ(Db_db.getConnectedUsernameFromTxIndex(2, name, errors), 0U);
  EXPECT_EQ(name, "anna");
  EXPECT_EQ(Db_db.getConnectedUsernameFromTxIndex(1, name, errors), 0U);
  EXPECT_EQ(name, "m-ben");
  EXPECT_EQ(Db_db.getConnectedUsernameFromTxIndex(7, name, errors), 1U);
}
