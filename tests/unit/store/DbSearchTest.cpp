// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

class DbSearch : public StoreTest
{
protected:
  DbSearch()
  {
    store.setRecords("userSession", R"([{"index": 11, "rxIndex": 1, "userIndex": 5},
                                        {"index": 12, "rxIndex": 2, "userIndex": 6},
                                        {"index": 13, "rxIndex": 2, "userIndex": 7}])");
    store.setRecords("user", R"([{"index": 1}, {"index": 2, "name": "anna"}, {"index": 3, "name": "anna"}])");
  }
  unsigned int index = 99;
};

TEST_F(DbSearch, findsTheFirstRecordWithANumber)
{
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("userSession", "rxIndex", 2, index, errors), 0U);
  EXPECT_EQ(index, 12U);
  EXPECT_THAT(store.requests(), ElementsAre(R"({"method":"GET","resource":"userSession"})"));
}

TEST_F(DbSearch, failsWithoutAMessageWhereNoRecordHasTheNumber)
{
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("userSession", "rxIndex", 3, index, errors), 1U);
  EXPECT_EQ(index, 99U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbSearch, failsWithoutAMessageOnAnEmptyResource)
{
  LogCapture log;
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("connection", "rxIndex", 3, index, errors), 1U);
  store.setRecords("connection", "[]");
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("connection", "rxIndex", 3, index, errors), 1U);
  EXPECT_EQ(index, 99U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(log.text(), "");
}

TEST_F(DbSearch, failsWithoutAMessageWithoutAnAnswer)
{
  store.hangUp("GET", "userSession");
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("userSession", "rxIndex", 2, index, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbSearch, findsTheFirstRecordWithATextAndGivesTheParameterThatWasAskedFor)
{
  store.setRecords("edid",
                   R"([{"index": 4, "number": 40, "name": "A"}, {"index": 5, "number": 50, "name": "B"}])");
  EXPECT_EQ(Db_db.findIndexOfStringKey("user", "index", "name", "anna", index, errors), 0U);
  EXPECT_EQ(index, 2U);
  EXPECT_EQ(Db_db.findIndexOfStringKey("edid", "number", "name", "B", index, errors), 0U);
  EXPECT_EQ(index, 50U);
}

TEST_F(DbSearch, failsWithoutAMessageWhereNoRecordHasTheText)
{
  EXPECT_EQ(Db_db.findIndexOfStringKey("user", "index", "name", "Anna", index, errors), 1U);
  store.setRecords("edid", "[]");
  EXPECT_EQ(Db_db.findIndexOfStringKey("edid", "index", "name", "A", index, errors), 1U);
  EXPECT_EQ(index, 99U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbSearch, tellsTheErrorsOfASearchByText)
{
  store.fail("GET", "user", R"([{"errno": 1105}])");
  LogCapture log;
  EXPECT_EQ(Db_db.findIndexOfStringKey("user", "index", "name", "anna", index, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("User does not have the required authorization") + "."));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors[0] + "\n");
}
