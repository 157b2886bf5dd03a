// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include <map>

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

// What people are told of each number that the store may give.
const struct {
  int number;
  const char *key;
} kTexts[] = {
    {1, "[RSnnn]General failure"},
    {4, "[RSnnn]Operation timed out"},
    {6, "[RSnnn]Subsystem not initialized"},
    {7, "[RSnnn]Not found"},
    {8, "[RSnnn]Capacity reached"},
    {9, "[RSnnn]Invalid parameter"},
    {10, "[RSnnn]Value out of range"},
    {11, "[RSnnn]Value not unique"},
    {12, "[RSnnn]Invalid enumerated value"},
    {13, "[RSnnn]Too short"},
    {14, "[RSnnn]Too long"},
    {15, "[RSnnn]Too large"},
    {16, "[RSnnn]Bad content"},
    {17, "[RSnnn]Invalid format"},
    {18, "[RSnnn]Device type mismatch"},
    {1001, "[RSnnn]Invalid syntax"},
    {1002, "[RSnnn]Missing method"},
    {1003, "[RSnnn]Missing resource"},
    {1004, "[RSnnn]Invalid method"},
    {1005, "[RSnnn]Invalid resource"},
    {1006, "[RSnnn]Method not supported"},
    {1007, "[RSnnn]Missing parameter(s)"},
    {1008, "[RSnnn]Missing key"},
    {1009, "[RSnnn]No entries"},
    {1010, "[RSnnn]Invalid enumeration"},
    {1011, "[RSnnn]Invalid binary length"},
    {1012, "[RSnnn]Value too long -- truncated"},
    {1013, "[RSnnn]Unknown parameter"},
    {1014, "[RSnnn]Resource is in use"},
    {1101, "[RSnnn]Device Not Online"},
    {1102, "[RSnnn]Username or Password not present in request"},
    {1103, "[RSnnn]Unable to authenticate user with supplied credentials"},
    {1104, "[RSnnn]User exists, but their account is not enabled"},
    {1105, "[RSnnn]User does not have the required authorization"},
    {1106, "[RSnnn]The operation was not allowed"},
    {1107, "[RSnnn]Swx not online"},
    {1108, "[RSnnn]Rx not online"},
    {1109, "[RSnnn]Tx not online"},
    {1110, "[RSnnn]Swx already resetting"},
    {1111, "[RSnnn]Rx already resetting"},
    {1112, "[RSnnn]Tx already resetting"},
    {1113, "[RSnnn]Swx not ready"},
    {1114, "[RSnnn]Rx reset mode not supported"},
    {1115, "[RSnnn]Tx reset mode not supported"},
    {1116, "[RSnnn]Icon unable to create file"},
    {1117, "[RSnnn]Icon unable to remove file"},
    {1118, "[RSnnn]Icon unable to revert file"},
    {1119, "[RSnnn]Rx user session already active"},
    {1120, "result.failure.connection_topology_error"},
    {1121, "result.failure.connection_topology_private_attempt_to_connected_tx"},
    {1122, "result.failure.connection_topology_share_attempt_to_busy_private_tx"},
    {1123, "result.failure.connection_topology_share_limit"},
    {1124, "result.failure.connection_topology_rx_already_connected"},
    {1125, "result.failure.connection_topology_no_path_available"},
    {1126, "result.failure.invalid_cascade_change"},
    {1127, "result.failure.backup_controller_not_ready"},
    {1128, "result.failure.restore_not_permitted_with_linked_peer"},
    {1129, "result.failure.net_change_not_permitted_on_backup_controller"},
    {1130, "result.failure.delete_offline_peer_not_permitted"},
};

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

TEST(DbErrors, hasATextForEachNumberOfTheStoreAndForNoOther)
{
  std::map<int, std::string> texts;
  for (const auto &row : kTexts)
    texts[row.number] = row.key;
  EXPECT_EQ(texts.size(), 59U);
  LogCapture log;
  for (int number = 0; number < 2000; ++number) {
    const auto known = texts.find(number);
    const std::string key = known == texts.end() ? "[RSnnn]Unknown error" : known->second;
    const std::string list = "[{\"errno\":" + std::to_string(number) + "}]";
    EXPECT_THAT(interpreted(list.c_str()), ElementsAre(untranslated(key) + ".")) << number;
  }
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
  ASSERT_THAT(errors, ElementsAre(shown("Invalid parameter") + ": ??100%s%n??."));
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
  ASSERT_THAT(errors, ElementsAre("before", shown("Operation timed out") + "."));
  LogCapture log;
  Db_db.logZelErrors(errors);
  EXPECT_EQ(log.text(), "1 logZelErrors: before\n1 logZelErrors: " + errors[1] + "\n");
}

using DbNoEntries = StoreTest;

// The message is left out of a list; what met the error fails all the same.
TEST_F(DbNoEntries, failWhatMetThemThoughTheirMessageIsLeftOut)
{
  store.fail("GET", "userSession", R"([{"errno": 1009}])");
  unsigned int index = 0;
  LogCapture log;
  EXPECT_EQ(Db_db.findIndexOfUInt32Key("userSession", "rxIndex", 1, index, errors), 1U);
  EXPECT_THAT(errors, IsEmpty());
}

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
