// SPDX-License-Identifier: MIT
#include "Clock.h"
#include "StoreTest.h"

using testing::IsEmpty;

namespace
{

time_t fixedTime()
{
  return 1000090061;
}

} // namespace

class DbSessions : public StoreTest
{
protected:
  DbSessions()
  {
    Clock_setSource(fixedTime);
    store.setRecords("connection", R"([
        {"index": 31, "rxIndex": 1, "txIndex": 6, "mode": "share_mode", "sessionStartTime": 1000000000},
        {"index": 32, "rxIndex": 2, "txIndex": 7, "mode": "private_mode", "sessionStartTime": 1000090002},
        {"index": 33, "rxIndex": 3, "txIndex": 8, "mode": "garbage", "sessionStartTime": 1000086461}])");
    store.setRecords("userSession",
                     R"([{"index": 21, "rxIndex": 1, "userIndex": 3, "sessionStartTime": 1000000000}])");
    store.setRecords("adminSession", R"([{"index": 5, "userIndex": 4}])");
  }
  ~DbSessions() override { Clock_setSource(nullptr); }
  std::string word = "before";
};

TEST_F(DbSessions, tellTheirModeAndLeaveTheTextForAnUnknownOne)
{
  EXPECT_EQ(Db_db.getSessionModeFromRxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, shown("Shared only"));
  EXPECT_EQ(Db_db.getSessionModeFromTxIndex(7, word, errors), 0U);
  EXPECT_EQ(word, shown("Private only"));
  word = "before";
  EXPECT_EQ(Db_db.getSessionModeFromTxIndex(8, word, errors), 0U);
  EXPECT_EQ(word, "before");
}

TEST_F(DbSessions, tellHowLongTheyLast)
{
  EXPECT_EQ(Db_db.getSessionDurationFromRxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, "1:01:01:01");
  EXPECT_EQ(Db_db.getSessionDurationFromTxIndex(7, word, errors), 0U);
  EXPECT_EQ(word, "0:59");
  EXPECT_EQ(Db_db.getSessionDurationFromTxIndex(8, word, errors), 0U);
  EXPECT_EQ(word, "1:00:00");
  EXPECT_EQ(Db_db.getLoginDurationFromRxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, "1:01:01:01");
}

TEST_F(DbSessions, haveNotLastedAtAllWhereTheyBeganAheadOfThisClock)
{
  store.setRecords("connection",
                   R"([{"index": 31, "rxIndex": 1, "txIndex": 6, "sessionStartTime": 1000090062}])");
  store.setRecords("userSession",
                   R"([{"index": 21, "rxIndex": 1, "userIndex": 3, "sessionStartTime": 2000000000}])");
  EXPECT_EQ(Db_db.getSessionDurationFromRxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, "0:00");
  EXPECT_EQ(Db_db.getSessionDurationFromTxIndex(6, word, errors), 0U);
  EXPECT_EQ(word, "0:00");
  EXPECT_EQ(Db_db.getLoginDurationFromRxIndex(1, word, errors), 0U);
  EXPECT_EQ(word, "0:00");
}

TEST_F(DbSessions, failWithoutAMessageWhereThereIsNone)
{
  EXPECT_EQ(Db_db.getSessionModeFromRxIndex(9, word, errors), 1U);
  EXPECT_EQ(Db_db.getSessionDurationFromTxIndex(9, word, errors), 1U);
  EXPECT_EQ(Db_db.getLoginDurationFromRxIndex(2, word, errors), 1U);
  unsigned int userIndex = 55;
  EXPECT_EQ(Db_db.getLoggedInUserIndexFromRxIndex(2, userIndex, errors), 1U);
  EXPECT_EQ(userIndex, 55U);
  EXPECT_EQ(word, "before");
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbSessions, tellWhoIsLoggedInWhere)
{
  unsigned int userIndex = 0;
  EXPECT_EQ(Db_db.getLoggedInUserIndexFromRxIndex(1, userIndex, errors), 0U);
  EXPECT_EQ(userIndex, 3U);
  EXPECT_TRUE(Db_db.userIsLoggedInToRx(3, errors));
  EXPECT_FALSE(Db_db.userIsLoggedInToRx(4, errors));
  EXPECT_TRUE(Db_db.userIsLoggedInToNevo(4, errors));
  EXPECT_FALSE(Db_db.userIsLoggedInToNevo(3, errors));
}
