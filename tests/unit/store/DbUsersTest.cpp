// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class DbUsers : public StoreTest
{
protected:
  DbUsers()
  {
    store.setRecords("user",
                     R"([{"index": 3, "role": "admin", "modeAllowed": "share_mode", "allTargetAccess": true},
                         {"index": 4, "role": "user", "modeAllowed": "garbage", "allTargetAccess": false},
                         {"index": 5, "role": "garbage"}])");
    store.setRecords("userTargetList", R"([{"index": 4, "target": [{"txIndex": 6}, {"txIndex": 8}]}])");
  }
  std::string word = "before";
  bool allowed = true;
};

TEST_F(DbUsers, haveARoleThatIsToldInWords)
{
  EXPECT_EQ(Db_db.getUserRoleFromUserIndex(3, word, errors), 0U);
  EXPECT_EQ(word, shown("Admin"));
  EXPECT_EQ(Db_db.getUserRoleFromUserIndex(4, word, errors), 0U);
  EXPECT_EQ(word, shown("User"));
  EXPECT_EQ(Db_db.getUserRoleFromUserIndex(5, word, errors), 0U);
  EXPECT_EQ(word, shown("Unknown"));
  EXPECT_THAT(store.requests().front(),
              R"({"method":"GET","query":{"index":3},"resource":"user","select":["role"]})");
  EXPECT_EQ(Db_db.getUserRoleFromUserIndex(9, word, errors), 1U);
}

TEST_F(DbUsers, haveAnAccessModeThatIsToldAsTheStoresWord)
{
  EXPECT_EQ(Db_db.getAllowedAccessModeFromUserIndex(3, word, errors), 0U);
  EXPECT_EQ(word, "share_mode");
  EXPECT_EQ(Db_db.getAllowedAccessModeFromUserIndex(4, word, errors), 0U);
  EXPECT_EQ(word, "garbage");
  EXPECT_EQ(Db_db.getAllowedAccessModeFromUserIndex(9, word, errors), 1U);
}

TEST_F(DbUsers, mayReachAllTargetsByAFlag)
{
  EXPECT_EQ(Db_db.getEnableAllTargetAccessFromUserIndex(3, allowed, errors), 0U);
  EXPECT_TRUE(allowed);
  EXPECT_EQ(Db_db.getEnableAllTargetAccessFromUserIndex(4, allowed, errors), 0U);
  EXPECT_FALSE(allowed);
  allowed = false;
  EXPECT_EQ(Db_db.getUserTxAccessRight(3, 77, allowed, errors), 0U);
  EXPECT_TRUE(allowed);
}

TEST_F(DbUsers, mayOtherwiseReachTheTargetsOfTheirList)
{
  EXPECT_EQ(Db_db.getUserTxAccessRight(4, 8, allowed, errors), 0U);
  EXPECT_TRUE(allowed);
  EXPECT_EQ(Db_db.getUserTxAccessRight(4, 7, allowed, errors), 0U);
  EXPECT_FALSE(allowed);
}

TEST_F(DbUsers, mayReachNothingWhereTheStoreCannotSay)
{
  EXPECT_EQ(Db_db.getUserTxAccessRight(9, 8, allowed, errors), 1U);
  EXPECT_FALSE(allowed);
  allowed = true;
  LogCapture log;
  store.setRecords("userTargetList", R"([{"index": 4}])");
  EXPECT_EQ(Db_db.getUserTxAccessRight(4, 8, allowed, errors), 1U);
  EXPECT_FALSE(allowed);
  allowed = true;
  store.hangUp("GET", "userTargetList");
  EXPECT_EQ(Db_db.getUserTxAccessRight(4, 8, allowed, errors), 1U);
  EXPECT_FALSE(allowed);
  EXPECT_THAT(log.text(),
              testing::EndsWith("2 getUserTxAccessRight: Unable to retrieve target list.\n"
                                "2 getUserTxAccessRight: Unable to retrieve user target list.\n"));
}
