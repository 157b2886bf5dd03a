// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using DbRead = StoreTest;
using DbExtract = StoreTest;

namespace
{

// A response of records 1 to 3, as a view holds it.
class Response
{
public:
  explicit Response(const char *json) : value_(json_loads(json, 0, nullptr)) {}
  ~Response() { json_decref(value_); }
  Response(const Response &) = delete;
  Response &operator=(const Response &) = delete;
  operator json_t *() const { return value_; }

private:
  json_t *value_;
};

} // namespace

TEST_F(DbRead, asksForOneParameterOfTheRecordWithThatIndex)
{
  store.setRecords("rx", R"([{"index": 3, "usbLogLevel": 5}])");
  unsigned int value = 0;
  EXPECT_EQ(Db_db.readUInt32("rx", 3, "usbLogLevel", value, errors), 0U);
  EXPECT_EQ(value, 5U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"GET","query":{"index":3},"resource":"rx","select":["usbLogLevel"]})"));
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbRead, sendsNoQueryForIndexZero)
{
  store.setRecords("systemGlobals", R"({"nevoInactivityTimeout": 10})");
  unsigned int value = 0;
  EXPECT_EQ(Db_db.readUInt32("systemGlobals", 0, "nevoInactivityTimeout", value, errors), 0U);
  EXPECT_EQ(value, 10U);
  EXPECT_THAT(
      store.requests(),
      ElementsAre(R"({"method":"GET","resource":"systemGlobals","select":["nevoInactivityTimeout"]})"));
}

TEST_F(DbRead, readsATextAsItIs)
{
  store.setRecords("user", R"([{"index": 1, "name": "J\u00fcrgen <b>%s</b>"}])");
  std::string value;
  EXPECT_EQ(Db_db.readString("user", 1, "name", value, errors), 0U);
  EXPECT_EQ(value, "J\xc3\xbcrgen <b>%s</b>");
}

TEST_F(DbRead, leavesTheTextAsItWasWhereTheRecordHasNone)
{
  store.setRecords("user", R"([{"index": 1}])");
  std::string value = "before";
  EXPECT_EQ(Db_db.readString("user", 1, "name", value, errors), 0U);
  EXPECT_EQ(value, "before");
}

TEST_F(DbRead, failsWithTranslatedAndLoggedMessagesWhenTheStoreReportsErrors)
{
  store.fail("GET", "rx", R"([{"errno": 1108}, {"errno": 7}])");
  unsigned int value = 44;
  LogCapture log;
  EXPECT_EQ(Db_db.readUInt32("rx", 1, "usbLogLevel", value, errors), 1U);
  EXPECT_EQ(value, 44U);
  EXPECT_THAT(errors, ElementsAre(shown("Rx not online") + ".", shown("Not found") + "."));
  EXPECT_EQ(log.text(), "1 logZelErrors: " + errors[0] + "\n1 logZelErrors: " + errors[1] + "\n");
}

TEST_F(DbRead, failsWithoutAMessageWhenThereIsNoAnswer)
{
  store.hangUp("GET", "rx");
  unsigned int value = 44;
  std::string name = "before";
  EXPECT_EQ(Db_db.readUInt32("rx", 1, "usbLogLevel", value, errors), 1U);
  EXPECT_EQ(Db_db.readString("rx", 1, "name", name, errors), 1U);
  EXPECT_EQ(value, 44U);
  EXPECT_EQ(name, "before");
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbRead, opensANewConnectionAfterABrokenOne)
{
  store.hangUp("GET", "rx");
  store.setRecords("tx", R"([{"index": 1, "name": "Tx 1"}])");
  std::string name;
  EXPECT_EQ(Db_db.readString("rx", 1, "name", name, errors), 1U);
  EXPECT_EQ(Db_db.readString("tx", 1, "name", name, errors), 0U);
  EXPECT_EQ(name, "Tx 1");
}

TEST_F(DbRead, takesEnabledInAnyCaseOfLettersForTrue)
{
  store.setRecords("systemGlobals", R"({"a": "enabled", "b": "Enabled", "c": "disabled", "d": "yes"})");
  bool value = false;
  EXPECT_EQ(Db_db.readEnableDisable("systemGlobals", 0, "a", value, errors), 0U);
  EXPECT_TRUE(value);
  value = false;
  EXPECT_EQ(Db_db.readEnableDisable("systemGlobals", 0, "b", value, errors), 0U);
  EXPECT_TRUE(value);
  EXPECT_EQ(Db_db.readEnableDisable("systemGlobals", 0, "c", value, errors), 0U);
  EXPECT_FALSE(value);
  value = true;
  EXPECT_EQ(Db_db.readEnableDisable("systemGlobals", 0, "d", value, errors), 0U);
  EXPECT_FALSE(value);
}

TEST_F(DbRead, leavesTheFlagAsItWasAfterAFailure)
{
  store.hangUp("GET", "systemGlobals");
  bool value = true;
  EXPECT_EQ(Db_db.readEnableDisable("systemGlobals", 0, "a", value, errors), 1U);
  EXPECT_TRUE(value);
}

TEST_F(DbExtract, takesValuesFromAResponseWithoutARequest)
{
  const Response response(R"({"number": 4, "text": "four", "on": "enabled"})");
  unsigned int number = 0;
  std::string word;
  bool on = false;
  EXPECT_EQ(Db_db.extractUInt32(response, "number", number), 0U);
  EXPECT_EQ(Db_db.extractString(response, "text", word), 0U);
  EXPECT_EQ(Db_db.extractEnableDisable(response, "on", on), 0U);
  EXPECT_EQ(number, 4U);
  EXPECT_EQ(word, "four");
  EXPECT_TRUE(on);
  EXPECT_THAT(store.requests(), IsEmpty());
}

TEST_F(DbExtract, takesOnlyTheExactWordEnabledForTrue)
{
  const Response response(R"({"on": "Enabled"})");
  bool on = true;
  EXPECT_EQ(Db_db.extractEnableDisable(response, "on", on), 0U);
  EXPECT_FALSE(on);
}

TEST_F(DbExtract, failsForAMissingTextAndANullResponse)
{
  const Response response(R"({"number": 4})");
  std::string word = "before";
  bool on = true;
  unsigned int number = 9;
  EXPECT_EQ(Db_db.extractString(response, "text", word), 1U);
  EXPECT_EQ(Db_db.extractEnableDisable(response, "on", on), 1U);
  EXPECT_EQ(Db_db.extractUInt32(nullptr, "number", number), 1U);
  EXPECT_EQ(Db_db.extractString(nullptr, "text", word), 1U);
  EXPECT_EQ(word, "before");
  EXPECT_TRUE(on);
  EXPECT_EQ(number, 9U);
}

TEST_F(DbExtract, mergesTheRowsOfTheRecordsByTheirIndex)
{
  const Response response(R"([{"index": 4, "n": 9, "s": "x", "e": "disabled"},
                              {"index": 2, "n": 5, "s": "y", "e": "enabled"},
                              {"index": 3, "n": 5, "s": "y", "e": "enabled"}])");
  unsigned int number = 1;
  std::string word = "before";
  bool on = false;
  bool allEqual = false;
  EXPECT_EQ(Db_db.extractUInt32Merge(response, {2, 3}, "n", number, allEqual), 0U);
  EXPECT_EQ(number, 5U);
  EXPECT_TRUE(allEqual);
  EXPECT_EQ(Db_db.extractStringMerge(response, {2, 3}, "s", word, allEqual), 0U);
  EXPECT_EQ(word, "y");
  EXPECT_TRUE(allEqual);
  EXPECT_EQ(Db_db.extractEnableDisableMerge(response, {2, 3}, "e", on, allEqual), 0U);
  EXPECT_TRUE(on);
  EXPECT_TRUE(allEqual);
}

TEST_F(DbExtract, mergesDifferingRowsToNothing)
{
  const Response response(R"([{"index": 4, "n": 9, "s": "x", "e": "disabled"},
                              {"index": 2, "n": 5, "s": "y", "e": "enabled"}])");
  unsigned int number = 1;
  std::string word = "before";
  bool on = true;
  bool allEqual = true;
  EXPECT_EQ(Db_db.extractUInt32Merge(response, {2, 4}, "n", number, allEqual), 0U);
  EXPECT_EQ(number, 0U);
  EXPECT_FALSE(allEqual);
  EXPECT_EQ(Db_db.extractStringMerge(response, {2, 4}, "s", word, allEqual), 0U);
  EXPECT_EQ(word, "");
  EXPECT_FALSE(allEqual);
  EXPECT_EQ(Db_db.extractEnableDisableMerge(response, {2, 4}, "e", on, allEqual), 0U);
  EXPECT_FALSE(on);
  EXPECT_FALSE(allEqual);
}

TEST_F(DbExtract, mergesNoRecordsToNothingOnWhichAllAgree)
{
  const Response response(R"([{"index": 4, "n": 9}])");
  unsigned int number = 1;
  std::string word = "before";
  bool allEqual = false;
  EXPECT_EQ(Db_db.extractUInt32Merge(response, {}, "n", number, allEqual), 0U);
  EXPECT_EQ(number, 0U);
  EXPECT_TRUE(allEqual);
  allEqual = false;
  EXPECT_EQ(Db_db.extractStringMerge(response, {}, "s", word, allEqual), 0U);
  EXPECT_EQ(word, "");
  EXPECT_TRUE(allEqual);
}

TEST_F(DbExtract, failsToMergeARecordThatTheResponseLacksOrThatLacksTheText)
{
  const Response response(R"([{"index": 4, "n": 9, "s": "x"}, {"index": 5, "n": 9}])");
  unsigned int number = 1;
  std::string word = "before";
  bool on = true;
  bool allEqual = true;
  EXPECT_EQ(Db_db.extractUInt32Merge(response, {4, 8}, "n", number, allEqual), 1U);
  EXPECT_EQ(Db_db.extractStringMerge(response, {4, 8}, "s", word, allEqual), 1U);
  EXPECT_EQ(Db_db.extractStringMerge(response, {4, 5}, "s", word, allEqual), 1U);
  EXPECT_EQ(Db_db.extractEnableDisableMerge(response, {5}, "s", on, allEqual), 1U);
  EXPECT_EQ(word, "");
  EXPECT_FALSE(on);
}

TEST_F(DbExtract, findsTheFirstRowWithAKey)
{
  const Response response(R"([{"index": 4, "k": 9}, {"index": 5, "k": 7}, {"index": 6, "k": 7}])");
  unsigned int offset = 99;
  EXPECT_EQ(Db_db.findOffsetOfUInt32KeyInZelRsp(response, "k", 7, offset, errors), 0U);
  EXPECT_EQ(offset, 1U);
  EXPECT_EQ(Db_db.findOffsetOfUInt32KeyInZelRsp(response, "k", 8, offset, errors), 1U);
  EXPECT_EQ(offset, 1U);
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(DbExtract, tellsTheErrorsOfAResponseThatIsSearched)
{
  const Response response(R"({"errors": [{"errno": 7}]})");
  unsigned int offset = 99;
  LogCapture log;
  EXPECT_EQ(Db_db.findOffsetOfUInt32KeyInZelRsp(response, "k", 7, offset, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("Not found") + "."));
  EXPECT_THAT(log.text(), HasSubstr("1 logZelErrors: "));
  EXPECT_EQ(Db_db.findOffsetOfUInt32KeyInZelRsp(nullptr, "k", 7, offset, errors), 1U);
}
