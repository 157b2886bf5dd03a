// SPDX-License-Identifier: MIT
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

// What an "errors" list becomes.
Db::Errors interpreted(const char *json, bool suppressNoEntries = false)
{
  json_t *list = json_loads(json, 0, nullptr);
  Db::Errors errors;
  Db_db.interpZelErrors(list, errors, suppressNoEntries);
  json_decref(list);
  return errors;
}

} // namespace

TEST(DbErrors, translatesEachEntryInOrder)
{
  EXPECT_THAT(interpreted(R"([{"errno": 1}, {"errno": 18}, {"errno": 1101}])"),
              ElementsAre(shown("General failure") + ".", shown("Device type mismatch") + ".",
                          shown("Device Not Online") + "."));
}

TEST(DbErrors, knowsBothFormsOfKeys)
{
  EXPECT_THAT(interpreted(R"([{"errno": 1119}, {"errno": 1120}, {"errno": 1130}])"),
              ElementsAre(shown("Rx user session already active") + ".",
                          untranslated("result.failure.connection_topology_error") + ".",
                          untranslated("result.failure.delete_offline_peer_not_permitted") + "."));
}

TEST(DbErrors, knowsFiftyNineNumbers)
{
  unsigned int known = 0;
  LogCapture log;
  for (int number = 0; number < 2000; ++number) {
    const std::string list = "[{\"errno\":" + std::to_string(number) + "}]";
    if (interpreted(list.c_str()) != Db::Errors{shown("Unknown error") + "."})
      ++known;
  }
  EXPECT_EQ(known, 59U);
}

TEST(DbErrors, callsAnotherNumberUnknownAndLogsIt)
{
  LogCapture log;
  EXPECT_THAT(interpreted(R"([{"errno": 4711}])"), ElementsAre(shown("Unknown error") + "."));
  EXPECT_EQ(log.text(), "2 interpZelErrors: Unknown ZEL error number 4711.\n");
}

TEST(DbErrors, callsAnEntryWithoutANumberUnknown)
{
  LogCapture log;
  EXPECT_THAT(
      interpreted(R"([{"errno": "nine"}, "rubbish", {}])"),
      ElementsAre(shown("Unknown error") + ".", shown("Unknown error") + ".", shown("Unknown error") + "."));
}

TEST(DbErrors, appendsTheTranslatedDetailAndLogsOneThatHasNoText)
{
  LogCapture log;
  EXPECT_THAT(interpreted(R"([{"errno": 9, "detail": "foo"}])"),
              ElementsAre(shown("Invalid parameter") + ": ??foo??."));
  EXPECT_EQ(log.text(), "1 interpZelErrors: Untranslated ZEL error detail string: \"foo\"\n");
}

TEST(DbErrors, carriesADetailWithPercentSignsUnchanged)
{
  LogCapture log;
  const Db::Errors errors = interpreted(R"([{"errno": 9, "detail": "100%s%n"}])");
  EXPECT_THAT(errors, ElementsAre(shown("Invalid parameter") + ": ??100%s%n??."));
  Db_db.logZelErrors(errors);
  EXPECT_EQ(log.text(), "1 interpZelErrors: Untranslated ZEL error detail string: \"100%s%n\"\n"
                        "1 logZelErrors: " +
                            errors[0] + "\n");
}

TEST(DbErrors, dropsOnlyNoEntriesAndOnlyWhenAsked)
{
  const char *list = R"([{"errno": 1009}, {"errno": 8}, {"errno": 1009, "detail": "foo"}])";
  LogCapture log;
  EXPECT_THAT(interpreted(list, true), ElementsAre(shown("Capacity reached") + "."));
  EXPECT_THAT(interpreted(list, false),
              ElementsAre(shown("No entries") + ".", shown("Capacity reached") + ".",
                          shown("No entries") + ": ??foo??."));
  EXPECT_THAT(interpreted(R"([{"errno": 1009}])", true), IsEmpty());
}

TEST(DbErrors, makesNothingOfAnEmptyOrMissingList)
{
  EXPECT_THAT(interpreted("[]"), IsEmpty());
  EXPECT_THAT(interpreted("no json"), IsEmpty());
}

TEST(DbErrors, appendsToWhatIsThereAndLogsTheWholeList)
{
  json_t *list = json_loads(R"([{"errno": 4}])", 0, nullptr);
  Db::Errors errors = {"before"};
  Db_db.interpZelErrors(list, errors, false);
  json_decref(list);
  EXPECT_THAT(errors, ElementsAre("before", shown("Operation timed out") + "."));
  LogCapture log;
  Db_db.logZelErrors(errors);
  EXPECT_EQ(log.text(), "1 logZelErrors: before\n1 logZelErrors: " + errors[1] + "\n");
}

using DbNoEntries = StoreTest;

TEST_F(DbNoEntries, stillFailsTheReadThatMetIt)
{
  unsigned int value = 0;
  LogCapture log;
  EXPECT_EQ(Db_db.readUInt32("rx", 1, "n", value, errors), 1U);
  EXPECT_THAT(errors, ElementsAre(shown("No entries") + "."));
}

TEST(DbErrors, showsTextsAndDetailsInTheLanguageOfTheSession)
{
  TestSession session;
  session.useTexts();
  LogCapture log;
  EXPECT_THAT(interpreted(R"([{"errno": 9, "detail": "[RSnnn]Offline"}, {"errno": 1009}])"),
              ElementsAre("Invalid parameter: Offline.", "No entries."));
  EXPECT_EQ(log.text(), "");
}
