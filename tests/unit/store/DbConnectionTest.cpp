// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include <thread>

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using DbConnection = StoreTest;

TEST_F(DbConnection, isTheSessionsAndStaysOpenBetweenAccesses)
{
  ZelClient_s *first = nullptr;
  ZelClient_s *second = nullptr;
  EXPECT_EQ(Db_db.getZelClient(first), 0U);
  EXPECT_EQ(Db_db.getZelClient(second), 0U);
  EXPECT_EQ(first, second);
}

TEST_F(DbConnection, isClosedForTheSessionAndOpenedAgainOnDemand)
{
  ZelClient_s *client = nullptr;
  Db_db.getZelClient(client);
  EXPECT_TRUE(session.hasOpenClient());
  Db_db.closeZelClient();
  EXPECT_FALSE(session.hasOpenClient());
  EXPECT_EQ(Db_db.getZelClient(client), 0U);
  EXPECT_TRUE(session.hasOpenClient());
}

TEST_F(DbConnection, tellsTheSessionsUser)
{
  EXPECT_EQ(Db_db.getIndexOfCurrentlyLoggedInNevoUsr(), 7U);
}

TEST_F(DbConnection, freesAnObjectAndNullsItsPointer)
{
  json_t *object = json_object();
  Db_db.zelObjFree(object);
  EXPECT_EQ(object, nullptr);
  Db_db.zelObjFree(object);
  EXPECT_EQ(object, nullptr);
}

TEST(DbWithoutSession, failsEveryAccessWithoutAMessageAndLogsThatOnce)
{
  Db db;
  Db::Errors errors;
  ZelClient_s *client = nullptr;
  unsigned int value = 3;
  LogCapture log;
  EXPECT_EQ(db.getZelClient(client), 1U);
  EXPECT_EQ(client, nullptr);
  EXPECT_EQ(db.getZelClient(client), 1U);
  EXPECT_EQ(db.getIndexOfCurrentlyLoggedInNevoUsr(), 0U);
  db.closeZelClient();
  EXPECT_EQ(log.text(), "1 getZelClient: Failed to get ZEL client.\n");

  EXPECT_EQ(Db_db.readUInt32("rx", 1, "n", value, errors), 1U);
  EXPECT_EQ(Db_db.writeUInt32("rx", 1, "n", 1, errors), 1U);
  EXPECT_EQ(Db_db.deleteRecordByIndex("rx", 1, errors), 1U);
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("rx", "n", 1, value, errors), 1U);
  EXPECT_EQ(value, 3U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST(DbWithoutStore, failsEveryAccessWithoutAMessage)
{
  setenv("NEVO_STORE_SOCKET", "/tmp/no-such-folder/store.sock", 1);
  const TestSession session;
  Db::Errors errors;
  unsigned int value = 3;
  const std::string name;
  EXPECT_EQ(Db_db.readUInt32("rx", 1, "n", value, errors), 1U);
  EXPECT_EQ(Db_db.writeString("rx", 1, "n", name, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
}
