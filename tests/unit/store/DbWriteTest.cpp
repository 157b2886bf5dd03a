// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

using DbWrite = StoreTest;

TEST_F(DbWrite, setsOneParameterOfTheRecordWithThatIndex)
{
  EXPECT_EQ(Db_db.writeUInt32("rx", 3, "usbLogLevel", 4000000000U, errors), 0U);
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", "Desk 1", errors), 0U);
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", std::string("Desk 2"), errors), 0U);
  EXPECT_EQ(Db_db.writeEnableDisable("rx", 3, "audioControl", true, errors), 0U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"SET","params":{"index":3,"usbLogLevel":4000000000},"resource":"rx"})",
                  R"({"method":"SET","params":{"index":3,"name":"Desk 1"},"resource":"rx"})",
                  R"({"method":"SET","params":{"index":3,"name":"Desk 2"},"resource":"rx"})",
                  R"({"method":"SET","params":{"audioControl":"enabled","index":3},"resource":"rx"})"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbWrite, sendsNoIndexForIndexZero)
{
  EXPECT_EQ(Db_db.writeUInt32("systemGlobals", 0, "nevoInactivityTimeout", 5, errors), 0U);
  EXPECT_EQ(Db_db.writeEnableDisable("systemGlobals", 0, "nevoBannerEnable", false, errors), 0U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"SET","params":{"nevoInactivityTimeout":5},"resource":"systemGlobals"})",
                  R"({"method":"SET","params":{"nevoBannerEnable":"disabled"},"resource":"systemGlobals"})"));
}

TEST_F(DbWrite, failsWithTheStoresMessages)
{
  store.fail("SET", "rx", R"([{"errno": 14}])");
  LogCapture log;
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", "x", errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Too long") + "."));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors[0] + "\n");
}

TEST_F(DbWrite, logsAMissingAnswerAndFailsWithoutAMessage)
{
  store.hangUp("SET", "rx");
  LogCapture log;
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", "x", errors), 1U);
  EXPECT_EQ(Db_db.writeUInt32("rx", 3, "usbLogLevel", 1, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(log.text(), "1 writeString: Cannot write string value to database.\n"
                        "1 writeUInt32: Cannot write integer value to database.\n");
}

TEST_F(DbWrite, refusesATextThatTheStoreCannotCarryInsteadOfWritingNothing)
{
  LogCapture log;
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", "\xff\xfe", errors), 1U);
  EXPECT_EQ(Db_db.writeString("rx", 3, "name", static_cast<const char *>(nullptr), errors), 1U);
  EXPECT_THAT(store.requests(), IsEmpty());
}

TEST_F(DbWrite, deletesARecordByItsIndex)
{
  EXPECT_EQ(Db_db.deleteRecordByIndex("user", 12, errors), 0U);
  EXPECT_THAT(store.requests(),
              ElementsAre(R"({"method":"DELETE","params":{"index":12},"resource":"user"})"));
  store.fail("DELETE", "user", R"([{"errno": 1014}])");
  EXPECT_EQ(Db_db.deleteRecordByIndex("user", 12, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Resource is in use") + "."));
}
