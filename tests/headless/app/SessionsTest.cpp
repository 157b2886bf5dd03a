// SPDX-License-Identifier: MIT
#include "SessionsVisitor.h"
#include "SwitchScript.h"
#include "TestStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const char kList[] = "Sessions";
const char kWarning[] = "Confirm Session Disconnect";
constexpr std::size_t kBytesPerCell = 60;
constexpr std::size_t kBytesBeside = 100;

std::string session(int index, int rx, int tx, const std::string &mode, long secondsAgo)
{
  return "{\"index\": " + std::to_string(index) + ", \"rxIndex\": " + std::to_string(rx) +
         ", \"txIndex\": " + std::to_string(tx) + ", \"mode\": \"" + mode +
         "\", \"sessionStartTime\": " + std::to_string(NevoSite::now() - secondsAgo) + "}";
}

std::string listOf(const std::vector<std::string> &records)
{
  std::string json = "[";
  for (const std::string &one : records)
    json += (json.size() > 1 ? "," : "") + one;
  return json + "]";
}

// The KVM sessions of a switch that does as the test says: anna at a receiver without a name, and bert at
// "Desk 3", who also works at "Desk 8".
class Sessions : public testing::Test
{
protected:
  Sessions() : visitor_(site_)
  {
    store_.setRecords("rx", R"([{"index": 3, "name": "Desk 3", "eid": "RRRRRR-000003"},
                                {"index": 4, "name": "", "eid": "RRRRRR-000004"},
                                {"index": 8, "name": "Desk 8", "eid": "RRRRRR-000008"}])");
    store_.setRecords("userSession", R"([{"index": 11, "userIndex": 7, "rxIndex": 3, "sessionStartTime": 1},
                                         {"index": 12, "userIndex": 1, "rxIndex": 4, "sessionStartTime": 1},
                                         {"index": 13, "userIndex": 7, "rxIndex": 8, "sessionStartTime": 1}])");
    store_.setRecords("portStatus",
                      R"([{"index": 1, "swxIndex": 1, "ports": [{"portIndex": 1, "eid": "RRRRRR-000003"},
                                                                {"portIndex": 2, "eid": "RRRRRR-000008"},
                                                                {"portIndex": 3, "eid": "TTTTTT-000005"}]},
                          {"index": 2, "swxIndex": 2, "ports": [{"portIndex": 1, "eid": "RRRRRR-000004"},
                                                                {"portIndex": 2, "eid": "TTTTTT-000006"}]}])");
    store_.setRecords("swx", R"([{"index": 1, "name": "North", "mode": "master", "cascadeRole": "controller"},
                                 {"index": 2, "name": "South", "mode": "slave", "cascadeRole": "slave"}])");
    wantWarning(true);
    setSessions({session(21, 3, 5, "private_mode", 65), session(22, 8, 5, "share_mode", 3700),
                 session(23, 4, 6, "share_mode", 3700)});
  }

  void wantWarning(bool wanted)
  {
    store_.setRecords("user", R"([{"index": 1, "name": "anna", "fullName": "Anna A", "role": "admin"},
                    {"index": 7, "name": "bert", "fullName": "Bert B", "role": "user"},
                    {"index": 2, "name": "operator", "role": "admin", "passwordIsInitialized": "is_true",
                     "enableDisconnectSessionWarning": ")" +
                                  std::string(wanted ? "enabled" : "disabled") + "\"}]");
  }
  void setSessions(const std::vector<std::string> &sessions)
  {
    store_.setRecords("connection", listOf(sessions));
  }
  void watch()
  {
    visitor_.openSessions();
    store_.forgetRequests();
    visitor_.resetCounters();
  }
  bool asked(const std::string &method, const std::string &part)
  {
    for (const std::string &request : store_.requests(method))
      if (request.find(part) != std::string::npos)
        return true;
    return false;
  }
  // A write of the operator's preference.
  static testing::Matcher<std::string> warningTurnedOff()
  {
    return testing::AllOf(HasSubstr("\"enableDisconnectSessionWarning\":\"disabled\""),
                          HasSubstr("\"resource\":\"user\""), HasSubstr("\"index\":2"));
  }
  void tickNotAgain() { visitor_.check(visitor_.byAttribute("type", "checkbox"), true); }

  SwitchScript store_;
  NevoSite site_;
  SessionsVisitor visitor_;
};

} // namespace

// ---- The list

TEST_F(Sessions, areListedWithUserEndsModeAndDuration)
{
  watch();
  EXPECT_THAT(visitor_.sessions(),
              ElementsAre(Row({"anna", "EID - RRRRRR-000004", "EID - TTTTTT-000006", "Shared", "1:01:40"}),
                          Row({"bert", "Desk 3", "Gamma", "Private", "1:05"}),
                          Row({"bert", "Desk 8", "Gamma", "Shared", "1:01:40"})));
}

TEST_F(Sessions, showNoUsernameWhereNobodyIsLoggedIn)
{
  store_.setRecords("userSession", "[]");
  setSessions({session(21, 3, 5, "private_mode", 65)});
  watch();
  EXPECT_THAT(visitor_.sessions(), ElementsAre(Row({"", "Desk 3", "Gamma", "Private", "1:05"})));
}

TEST_F(Sessions, showDaysAndNoTimeBeforeAStartThatLiesAhead)
{
  setSessions({session(21, 3, 5, "share_mode", 90061), session(23, 4, 6, "share_mode", -50)});
  watch();
  EXPECT_EQ(visitor_.sessions()[0].back(), "0:00");
  EXPECT_EQ(visitor_.sessions()[1].back(), "1:01:01:01");
}

TEST_F(Sessions, sayInWordsThatThereAreNone)
{
  setSessions({});
  watch();
  EXPECT_THAT(visitor_.sessions(), IsEmpty());
  EXPECT_EQ(visitor_.list(kList)->get("data-empty"), "No receiver is connected to a transmitter.");
}

TEST_F(Sessions, areNoneAndAboutWhichNothingIsSaidWhereTheStoreRefusesToListThem)
{
  watch();
  store_.fail("GET", "connection", R"([{"errno": 1}])");
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.sessions(), IsEmpty());
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_EQ(visitor_.list(kList)->get("data-empty"), "");
  EXPECT_TRUE(visitor_.list(kList)->hasClass("nevo-list-unread"));
}

TEST_F(Sessions, liveWithAStoreThatHangsUp)
{
  watch();
  store_.hangUp("GET", "connection");
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.sessions(), IsEmpty());
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_EQ(visitor_.list(kList)->get("data-empty"), "");
}

TEST_F(Sessions, showTextsOfTheStoreAsTheyAre)
{
  store_.setRecords("rx", R"([{"index": 3, "name": "<b>Desk</b>", "eid": "RRRRRR-000003"}])");
  setSessions({session(21, 3, 5, "share_mode", 1)});
  watch();
  EXPECT_EQ(visitor_.sessions()[0][1], "<b>Desk</b>");
  visitor_.choose(0);
  EXPECT_EQ(visitor_.details()["Receiver"], "<b>Desk</b>");
  EXPECT_FALSE(visitor_.byTag("b"));
}

// ---- Refresh

TEST_F(Sessions, areReadEveryFiveSecondsWhileTheTabShowsAndThenOnly)
{
  watch();
  visitor_.advance(15s);
  const std::size_t count = store_.readCount("connection");
  EXPECT_GE(count, 3U);
  visitor_.openTab("Events");
  store_.forgetRequests();
  visitor_.advance(15s);
  EXPECT_EQ(store_.readCount("connection"), 0U);
}

TEST_F(Sessions, sendOnlyTheDurationsThatRun)
{
  watch();
  visitor_.waitForRefresh();
  EXPECT_EQ(visitor_.sessions()[1].back(), "1:10");
  EXPECT_LE(visitor_.bytesReceived(), 3 * kBytesPerCell + kBytesBeside);
}

TEST_F(Sessions, sendNothingWhereNothingChanged)
{
  setSessions({session(21, 3, 5, "share_mode", -1000)});
  watch();
  visitor_.advance(15s);
  EXPECT_GE(store_.readCount("connection"), 3U);
  EXPECT_EQ(visitor_.bytesReceived(), 0U);
}

TEST_F(Sessions, thatAreSelectedStaySelectedWhereverTheyMove)
{
  watch();
  visitor_.choose(2);
  setSessions({session(30, 4, 6, "share_mode", 1), session(22, 8, 5, "share_mode", 1),
               session(29, 3, 5, "share_mode", 1), session(28, 3, 5, "share_mode", 1)});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.selected(kList), SizeIs(1));
  EXPECT_EQ(visitor_.details()["Receiver"], "Desk 8");
  EXPECT_EQ(visitor_.details()["Session Duration"], "0:06");
}

TEST_F(Sessions, thatHaveEndedLeaveTheSelection)
{
  watch();
  visitor_.choose(1);
  visitor_.chooseToo(2);
  EXPECT_THAT(visitor_.selected(kList), SizeIs(2));
  setSessions({session(22, 8, 5, "share_mode", 3700)});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.selected(kList), SizeIs(1));
  EXPECT_TRUE(visitor_.canPress("Disconnect"));
  EXPECT_EQ(visitor_.details()["Receiver"], "Desk 8");
  setSessions({});
  visitor_.waitForRefresh();
  EXPECT_FALSE(visitor_.canPress("Disconnect"));
  EXPECT_THAT(visitor_.details(), IsEmpty());
}

TEST_F(Sessions, areChosenWithShiftFromTheRowThatWasChosenLast)
{
  watch();
  visitor_.choose(0);
  visitor_.event(visitor_.list(kList), "table:down", R"({"a":[2,1],"b":1,"m":1})");
  EXPECT_THAT(visitor_.selected(kList), SizeIs(3));
}

// ---- Details

TEST_F(Sessions, offerConnectingAlwaysAndDisconnectingForASelection)
{
  watch();
  EXPECT_TRUE(visitor_.canPress("Connect"));
  EXPECT_FALSE(visitor_.canPress("Disconnect"));
  EXPECT_THAT(visitor_.details(), IsEmpty());
  visitor_.choose(0);
  EXPECT_TRUE(visitor_.canPress("Disconnect"));
  visitor_.chooseToo(0);
  EXPECT_FALSE(visitor_.canPress("Disconnect"));
  EXPECT_THAT(visitor_.details(), IsEmpty());
}

TEST_F(Sessions, showTheirDetails)
{
  watch();
  visitor_.choose(1);
  const std::map<std::string, std::string> expected = {{"Receiver Switch", "North"},
                                                       {"Receiver", "Desk 3"},
                                                       {"Transmitter Switch", "North"},
                                                       {"Transmitter", "Gamma"},
                                                       {"Username", "bert"},
                                                       {"Full Name", "Bert B"},
                                                       {"Role", "User"},
                                                       {"Session Mode", "Private"},
                                                       {"Session Duration", "1:05"}};
  EXPECT_EQ(visitor_.details(), expected);
}

TEST_F(Sessions, showWhatSeveralHaveInCommon)
{
  watch();
  visitor_.choose(1);
  visitor_.chooseToo(2);
  const std::map<std::string, std::string> expected = {{"Receiver Switch", "North"},
                                                       {"Receiver", ""},
                                                       {"Transmitter Switch", "North"},
                                                       {"Transmitter", "Gamma"},
                                                       {"Username", "bert"},
                                                       {"Full Name", "Bert B"},
                                                       {"Role", "User"},
                                                       {"Session Mode", ""},
                                                       {"Session Duration", ""}};
  EXPECT_EQ(visitor_.details(), expected);
  visitor_.chooseToo(0);
  for (const auto &value : visitor_.details())
    EXPECT_EQ(value.second, "") << value.first;
}

TEST_F(Sessions, showACommonDurationAndMode)
{
  watch();
  visitor_.choose(0);
  visitor_.chooseToo(2);
  EXPECT_EQ(visitor_.details()["Session Duration"], "1:01:40");
  EXPECT_EQ(visitor_.details()["Session Mode"], "Shared");
  EXPECT_EQ(visitor_.details()["Username"], "");
}

TEST_F(Sessions, leaveEmptyWhatCannotBeRead)
{
  watch();
  store_.failRecord("GET", "connection", 21, R"([{"errno": 1}])");
  visitor_.choose(1);
  EXPECT_THAT(visitor_.details(), SizeIs(9));
  for (const auto &value : visitor_.details())
    EXPECT_EQ(value.second, "") << value.first;
  EXPECT_FALSE(visitor_.dialog());
}

// ---- Disconnecting

TEST_F(Sessions, areDisconnectedAfterAQuestion)
{
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  EXPECT_EQ(visitor_.dialogText(), std::string(kWarning) +
                                       " Are you sure you want to disconnect the selected session(s)? "
                                       "Do not show this message again. Cancel Disconnect");
  EXPECT_THAT(store_.requests("DELETE"), IsEmpty());
  visitor_.press("Disconnect");
  EXPECT_TRUE(asked("DELETE", "\"index\":21"));
  EXPECT_TRUE(asked("DELETE", "userSession"));
  EXPECT_THAT(store_.requests("SET"), IsEmpty());
}

TEST_F(Sessions, areReadAnewOneSecondAfterDisconnecting)
{
  wantWarning(false);
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  EXPECT_THAT(visitor_.selected(kList), IsEmpty());
  EXPECT_FALSE(visitor_.dialog());
  setSessions({});
  visitor_.advance(999ms);
  EXPECT_THAT(visitor_.sessions(), SizeIs(3));
  visitor_.advance(1ms);
  EXPECT_THAT(visitor_.sessions(), IsEmpty());
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(Sessions, canBeChosenWhileTheStoreSettlesAfterDisconnecting)
{
  wantWarning(false);
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  visitor_.choose(2);
  EXPECT_EQ(visitor_.details()["Receiver"], "Desk 8");
  setSessions({session(22, 8, 5, "share_mode", 3700), session(23, 4, 6, "share_mode", 3700)});
  visitor_.advance(1s);
  EXPECT_THAT(visitor_.sessions(), SizeIs(2));
  EXPECT_THAT(visitor_.selected(kList), SizeIs(1));
  EXPECT_EQ(visitor_.details()["Receiver"], "Desk 8");
}

TEST_F(Sessions, haveTheDangerLookOnTheButtonThatDisconnectsThem)
{
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  const auto dangers =
      visitor_.page().findAll([](const Visitor::Node &n) { return n.hasClass("nevo-danger"); });
  ASSERT_THAT(dangers, SizeIs(1));
  EXPECT_EQ(dangers.front()->text, "Disconnect");
}

TEST_F(Sessions, takeTheHeightsOfTheirPanels)
{
  watch();
  EXPECT_EQ(visitor_.panel(kList)->get("*height"), "260px");
  EXPECT_EQ(visitor_.panel(kList)->get("*min-height"), "115px");
}

// ---- Typing in the list

TEST_F(Sessions, areFilteredByWhatIsTypedInTheList)
{
  watch();
  visitor_.typeInto(kList, "BERT 8");
  EXPECT_THAT(visitor_.sessions(), ElementsAre(Row({"bert", "Desk 8", "Gamma", "Shared", "1:01:40"})));
  EXPECT_EQ(visitor_.filterMark(kList), "BERT 8 \xE2\x80\x94 1 of 3");
  visitor_.keyInto(kList, 8);
  EXPECT_THAT(visitor_.sessions(), SizeIs(2));
  visitor_.keyInto(kList, 27);
  EXPECT_THAT(visitor_.sessions(), SizeIs(3));
  EXPECT_EQ(visitor_.filterMark(kList), "");
}

TEST_F(Sessions, thatTheFilterHidesLeaveTheSelectionAndNoCommandTouchesThem)
{
  wantWarning(false);
  watch();
  visitor_.choose(0);
  visitor_.chooseToo(1);
  visitor_.typeInto(kList, "bert");
  EXPECT_THAT(visitor_.selected(kList), SizeIs(1));
  EXPECT_EQ(visitor_.details()["Username"], "bert");
  visitor_.press("Disconnect");
  EXPECT_TRUE(asked("DELETE", "\"index\":21"));
  EXPECT_FALSE(asked("DELETE", "\"index\":23"));
}

TEST_F(Sessions, offerNothingOnceTheFilterHidesTheOnlySelectedOne)
{
  watch();
  visitor_.choose(0);
  EXPECT_TRUE(visitor_.canPress("Disconnect"));
  visitor_.typeInto(kList, "bert");
  EXPECT_FALSE(visitor_.canPress("Disconnect"));
  EXPECT_THAT(visitor_.details(), IsEmpty());
}

TEST_F(Sessions, areFilteredAnewByEachRefresh)
{
  watch();
  visitor_.typeInto(kList, "shared");
  EXPECT_THAT(visitor_.sessions(), SizeIs(2));
  setSessions({session(21, 3, 5, "share_mode", 65), session(22, 8, 5, "private_mode", 3700),
               session(24, 4, 6, "share_mode", 3700)});
  visitor_.waitForRefresh();
  ASSERT_THAT(visitor_.sessions(), SizeIs(2));
  EXPECT_EQ(visitor_.sessions()[1][1], "Desk 3");
  EXPECT_EQ(visitor_.filterMark(kList), "shared \xE2\x80\x94 2 of 3");
}

TEST_F(Sessions, areTakenByControlAAsFarAsTheyShow)
{
  watch();
  visitor_.typeInto(kList, "bert");
  visitor_.event(visitor_.list(kList), "table:key", R"({"a":[65,2]})");
  EXPECT_THAT(visitor_.selected(kList), SizeIs(2));
  visitor_.keyInto(kList, 27);
  EXPECT_THAT(visitor_.selected(kList), SizeIs(2));
}

TEST_F(Sessions, sayThatTheFilterLeavesNone)
{
  watch();
  visitor_.typeInto(kList, "nobody");
  EXPECT_THAT(visitor_.sessions(), IsEmpty());
  EXPECT_EQ(visitor_.list(kList)->get("data-empty"), "Nothing in the list matches what you have typed.");
}

TEST_F(Sessions, stayAfterCancelWhichStillTurnsTheWarningOffForThatUser)
{
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  tickNotAgain();
  visitor_.press("Cancel");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_THAT(store_.requests("SET"), ElementsAre(warningTurnedOff()));
  EXPECT_THAT(store_.requests("DELETE"), IsEmpty());
  EXPECT_THAT(visitor_.sessions(), SizeIs(3));
}

TEST_F(Sessions, areDisconnectedAndTheWarningTurnedOffForThatUser)
{
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  tickNotAgain();
  visitor_.press("Disconnect");
  EXPECT_THAT(store_.requests("SET"), ElementsAre(warningTurnedOff()));
  EXPECT_TRUE(asked("DELETE", "\"index\":21"));
}

TEST_F(Sessions, keepTheWarningTurnedOffByEscapeAndStay)
{
  watch();
  visitor_.choose(0);
  visitor_.press("Disconnect");
  tickNotAgain();
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_THAT(store_.requests("SET"), ElementsAre(warningTurnedOff()));
  EXPECT_THAT(store_.requests("DELETE"), IsEmpty());
  EXPECT_THAT(visitor_.selected(kList), SizeIs(1));
}

TEST_F(Sessions, areDisconnectedAtOnceWhereTheUserWantsNoWarning)
{
  wantWarning(false);
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  EXPECT_TRUE(asked("DELETE", "\"index\":21"));
}

TEST_F(Sessions, areNotDisconnectedUnaskedWhereThePreferenceCannotBeRead)
{
  wantWarning(false);
  watch();
  visitor_.choose(1);
  store_.failRecord("GET", "user", 2, R"([{"errno": 1}])");
  visitor_.press("Disconnect");
  EXPECT_THAT(visitor_.dialogText(), HasSubstr(kWarning));
}

TEST_F(Sessions, thatCannotBeDisconnectedAreToldOneByOneAndTheOthersGoOn)
{
  wantWarning(false);
  store_.failRecord("GET", "connection", 21, R"([{"errno": 7}])");
  store_.failRecord("DELETE", "connection", 21, R"([{"errno": 7}])");
  watch();
  visitor_.choose(1);
  visitor_.chooseToo(2);
  visitor_.press("Disconnect");
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Error Unable to disconnect session."));
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Close"));
  EXPECT_FALSE(asked("DELETE", "\"index\":22"));
  visitor_.press("Close");
  EXPECT_TRUE(asked("DELETE", "\"index\":22"));
  visitor_.advance(1s);
  EXPECT_FALSE(visitor_.dialog());
}

TEST_F(Sessions, thatEndWhileTheQuestionIsAskedAreNotDisconnected)
{
  watch();
  visitor_.choose(1);
  visitor_.press("Disconnect");
  setSessions({session(22, 8, 5, "share_mode", 3700)});
  visitor_.waitForRefresh();
  visitor_.press("Disconnect");
  EXPECT_THAT(store_.requests("DELETE"), IsEmpty());
  visitor_.advance(1s);
  EXPECT_FALSE(visitor_.dialog());
}

// ---- On a switch

namespace
{

// Two administrators at one switch.
class SessionsOfTwo : public testing::Test
{
protected:
  SessionsOfTwo() : one_(site_), other_(site_) {}

  static void connect(SessionsVisitor &visitor, const std::string &mode, const std::string &user,
                      const std::string &rx, const std::string &tx)
  {
    visitor.openDialog();
    visitor.pickMode(mode);
    visitor.pick(SessionsVisitor::Users, user);
    visitor.pick(SessionsVisitor::Receivers, rx);
    visitor.pick(SessionsVisitor::Transmitters, tx);
    visitor.press("Connect");
  }
  static void disconnectFirst(SessionsVisitor &visitor)
  {
    visitor.choose(0);
    visitor.press("Disconnect");
    visitor.press("Disconnect");
  }

  TestStore store_;
  NevoSite site_;
  SessionsVisitor one_;
  SessionsVisitor other_;
};

} // namespace

TEST_F(SessionsOfTwo, areSeenByTheOtherWithinARefresh)
{
  one_.openSessions();
  other_.openSessions();
  const std::size_t before = other_.sessions().size();
  connect(one_, "Shared session", "hlindqvist", "Desk 2 Dispatch", "SCADA Primary");
  EXPECT_EQ(one_.dialogText(), "Session Session has been successfully connected. Close");
  one_.press("Close");
  other_.waitForRefresh();
  EXPECT_THAT(one_.sessions(), SizeIs(before + 1));
  EXPECT_THAT(other_.sessions(), SizeIs(before + 1));
}

TEST_F(SessionsOfTwo, thatBothDisconnectAreOrdinaryFailuresForTheSecond)
{
  one_.openSessions();
  connect(one_, "Shared session", "hlindqvist", "Desk 2 Dispatch", "SCADA Primary");
  one_.press("Close");
  other_.openSessions();
  const std::size_t before = one_.sessions().size();
  one_.choose(0);
  other_.choose(0);
  one_.press("Disconnect");
  other_.press("Disconnect");
  one_.press("Disconnect");
  other_.press("Disconnect");
  EXPECT_THAT(other_.dialogText(), HasSubstr("Unable to disconnect session."));
  other_.press("Close");
  other_.advance(1s);
  one_.advance(0s);
  EXPECT_FALSE(one_.dialog());
  EXPECT_FALSE(other_.dialog());
  EXPECT_THAT(one_.sessions(), SizeIs(before - 1));
  EXPECT_THAT(other_.sessions(), SizeIs(before - 1));
}

TEST_F(SessionsOfTwo, thatWantTheSameReceiverAreRefusedToTheSecond)
{
  one_.openSessions();
  other_.openSessions();
  other_.openDialog();
  other_.pick(SessionsVisitor::Users, "hlindqvist");
  other_.pick(SessionsVisitor::Receivers, "Desk 2 Dispatch");
  other_.pick(SessionsVisitor::Transmitters, "SCADA Primary");
  connect(one_, "Shared session", "hlindqvist", "Desk 2 Dispatch", "SCADA Primary");
  one_.press("Close");
  other_.press("Connect");
  EXPECT_EQ(other_.dialogText(), "Error Unable to create session. Rx user session already active. Close");
  other_.press("Close");
  EXPECT_EQ(other_.sessions(), one_.sessions());
}
