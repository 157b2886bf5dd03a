// SPDX-License-Identifier: MIT
#include "NevoApplication.h"
#include "NevoSite.h"
#include "SwitchScript.h"
#include "TestStore.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const char kSessions[] = "User Sessions";
const char kEvents[] = "Events";
constexpr std::size_t kBytesPerCell = 60;
constexpr std::size_t kBytesBeside = 100;

std::string number(long value)
{
  return std::to_string(value);
}

// An administrator who watches the dashboard of a switch that does as the test says.
class Dashboard : public testing::Test
{
protected:
  Dashboard() : visitor_(site_) {}

  // Two people at work: bert at "Desk 3", connected to "Gamma" for 65 s; anna at a receiver without a name,
  // connected to nothing, logged in for 3700 s.
  void putPeopleToWork()
  {
    store_.setRecords("userSession",
                      R"([{"index": 11, "userIndex": 7, "rxIndex": 3, "sessionStartTime": )" +
                          number(NevoSite::now() - 500) +
                          R"(}, {"index": 12, "userIndex": 1, "rxIndex": 4, "sessionStartTime": )" +
                          number(NevoSite::now() - 3700) + "}]");
    store_.setRecords(
        "connection",
        R"([{"index": 21, "rxIndex": 3, "txIndex": 5, "mode": "private_mode", "sessionStartTime": )" +
            number(NevoSite::now() - 65) + "}]");
  }
  static std::string event(int instance, const std::string &severity, const std::string &message)
  {
    return R"({"instanceId": )" + number(instance) +
           R"(, "date": 1000000000, "originatorEid": "RRRRRR-000003", )" + R"("severity": ")" + severity +
           R"(", "alertMsg": ")" + message + "\"}";
  }
  void setEvents(const std::vector<std::string> &events)
  {
    std::string json = "[";
    for (const std::string &one : events)
      json += (json.size() > 1 ? "," : "") + one;
    store_.setRecords("unacknowledgedAlerts", json + "]");
  }
  void watch()
  {
    visitor_.open();
    visitor_.logIn();
    store_.forgetRequests();
    visitor_.resetCounters();
  }
  void waitForRefresh() { visitor_.advance(5s); }
  Row messages() const
  {
    Row texts;
    for (const Row &row : visitor_.rows(kEvents))
      texts.push_back(row.back());
    return texts;
  }

  SwitchScript store_;
  NevoSite site_;
  Visitor visitor_;
};

} // namespace

TEST_F(Dashboard, listsWhoWorksWhereWithWhatAndForHowLong)
{
  putPeopleToWork();
  watch();
  EXPECT_THAT(visitor_.rows(kSessions), ElementsAre(Row({"anna", "EID - RRRRRR-000004", "", "", "1:01:40"}),
                                                    Row({"bert", "Desk 3", "Gamma", "Private", "1:05"})));
}

TEST_F(Dashboard, namesItsColumns)
{
  watch();
  Row headings;
  for (const Visitor::Node *cell :
       visitor_.page().findAll([](const Visitor::Node &n) { return n.get("role") == "columnheader"; }))
    headings.push_back(cell->allText());
  EXPECT_THAT(headings, ElementsAre("Username", "Receiver", "Transmitter", "Mode", "Duration", "Date/Time",
                                    "Type", "Originator EID", "Message"));
}

TEST_F(Dashboard, takesTheFirstConnectionOfAReceiver)
{
  putPeopleToWork();
  store_.setRecords(
      "connection",
      R"([{"index": 20, "rxIndex": 9, "txIndex": 6, "mode": "private_mode", "sessionStartTime": 1},
                        {"index": 21, "rxIndex": 3, "txIndex": 6, "mode": "share_mode",
                         "sessionStartTime": )" +
          number(NevoSite::now() - 7) +
          R"(}, {"index": 22, "rxIndex": 3, "txIndex": 5, "mode": "private_mode", "sessionStartTime": 1}])");
  watch();
  EXPECT_EQ(visitor_.rows(kSessions).back(),
            Row({"bert", "Desk 3", "EID - TTTTTT-000006", "Shared", "0:07"}));
}

TEST_F(Dashboard, showsNoModeAndTheTimeSinceTheLoginWhereConnectionsCannotBeRead)
{
  putPeopleToWork();
  store_.fail("GET", "connection", R"([{"errno": 1}])");
  watch();
  EXPECT_THAT(visitor_.rows(kSessions), ElementsAre(Row({"anna", "EID - RRRRRR-000004", "", "", "1:01:40"}),
                                                    Row({"bert", "Desk 3", "", "", "8:20"})));
}

TEST_F(Dashboard, livesWithAConnectionThatBreaksWhileItReads)
{
  putPeopleToWork();
  store_.hangUp("GET", "connection");
  watch();
  ASSERT_THAT(visitor_.rows(kSessions), SizeIs(2));
  for (const Row &row : visitor_.rows(kSessions))
    EXPECT_EQ(row[3], "");
}

TEST_F(Dashboard, countsNoTimeBeforeAStartThatLiesAhead)
{
  store_.setRecords("userSession", R"([{"index": 11, "userIndex": 7, "rxIndex": 3, "sessionStartTime": )" +
                                       number(NevoSite::now() + 30) + "}]");
  watch();
  EXPECT_EQ(visitor_.rows(kSessions).front().back(), "0:00");
}

TEST_F(Dashboard, fillsTheEventsWhereNobodyWorks)
{
  setEvents({event(1, "info", "One")});
  watch();
  EXPECT_THAT(visitor_.rows(kSessions), IsEmpty());
  EXPECT_THAT(messages(), ElementsAre("One"));
}

TEST_F(Dashboard, saysInsteadOfAnEmptyListWhyItIsEmpty)
{
  watch();
  EXPECT_EQ(visitor_.list(kSessions)->get("data-empty"), "Nobody is logged in at a receiver.");
  EXPECT_EQ(visitor_.list(kEvents)->get("data-empty"), "There are no unacknowledged events.");
}

TEST_F(Dashboard, listsEventsOfAnySeverityWithTheNewestOnTop)
{
  setEvents({event(9, "info", "Nine"), event(10, "warning", "Ten"), event(2, "error", "Two"),
             event(11, "odd", "Eleven")});
  watch();
  ASSERT_THAT(messages(), ElementsAre("Eleven", "Ten", "Nine", "Two"));
  const std::vector<Row> rows = visitor_.rows(kEvents);
  EXPECT_EQ(rows[1][1], "Warning");
  EXPECT_EQ(rows[2][1], "Information");
  EXPECT_EQ(rows[3][1], "Error");
  EXPECT_EQ(rows[0][2], "RRRRRR-000003");
  EXPECT_EQ(rows[0][0].substr(0, 7), "2001-9-");
}

TEST_F(Dashboard, dropsAnEventThatWasAcknowledged)
{
  setEvents({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  setEvents({event(1, "info", "One")});
  waitForRefresh();
  EXPECT_THAT(messages(), ElementsAre("One"));
}

TEST_F(Dashboard, refreshesEveryFiveSeconds)
{
  watch();
  setEvents({event(1, "info", "One")});
  visitor_.advance(4999ms);
  EXPECT_THAT(messages(), IsEmpty());
  visitor_.advance(1ms);
  EXPECT_THAT(messages(), ElementsAre("One"));
  putPeopleToWork();
  waitForRefresh();
  EXPECT_THAT(visitor_.rows(kSessions), SizeIs(2));
}

TEST_F(Dashboard, restsWhileTheBrowserIsAwayAndIsUpToDateSoonAfter)
{
  watch();
  visitor_.disconnect();
  visitor_.advance(60s);
  EXPECT_EQ(store_.readCount("userSession"), 0U);
  putPeopleToWork();
  visitor_.reconnect();
  waitForRefresh();
  EXPECT_THAT(visitor_.rows(kSessions), SizeIs(2));
}

// ---- Hostile names

TEST_F(Dashboard, showsMarkupInNamesAsText)
{
  putPeopleToWork();
  store_.setRecords("user", R"([{"index": 7, "name": "<b>bert</b>"}, {"index": 2, "name": "operator"},
                                {"index": 1, "name": "\"><script>x</script>"}])");
  store_.setRecords(
      "rx", R"([{"index": 3, "name": "<img src=x onerror=alert(1)>"}, {"index": 4, "name": "&lt;"}])");
  store_.setRecords("tx", R"([{"index": 5, "name": "<i>Gamma</i>"}])");
  setEvents({event(1, "<u>", "<a href='javascript:x'>One</a>")});
  visitor_.open();
  store_.answer("CREATE", "adminSession", R"({"userIndex": 2})");
  store_.setRecords("user", R"([{"index": 7, "name": "<b>bert</b>"},
                                {"index": 2, "name": "operator", "passwordIsInitialized": "is_true"},
                                {"index": 1, "name": "\"><script>x</script>"}])");
  visitor_.logIn();
  EXPECT_THAT(visitor_.rows(kSessions), ElementsAre(Row({"\"><script>x</script>", "&lt;", "", "", "1:01:40"}),
                                                    Row({"<b>bert</b>", "<img src=x onerror=alert(1)>",
                                                         "<i>Gamma</i>", "Private", "1:05"})));
  EXPECT_THAT(messages(), ElementsAre("<a href='javascript:x'>One</a>"));
  for (const Visitor::Node *cell :
       visitor_.page().findAll([](const Visitor::Node &n) { return n.tag == "~c"; }))
    EXPECT_FALSE(cell->has("<")) << cell->text;
}

// ---- Selection

TEST_F(Dashboard, keepsASelectedSessionWhereverItsRowMoves)
{
  putPeopleToWork();
  watch();
  visitor_.selectRow(kSessions, 1);
  ASSERT_THAT(visitor_.selected(kSessions), ElementsAre("bert"));
  store_.setRecords("userSession", R"([{"index": 13, "userIndex": 2, "rxIndex": 4, "sessionStartTime": 1},
                                       {"index": 11, "userIndex": 7, "rxIndex": 3, "sessionStartTime": 1},
                                       {"index": 12, "userIndex": 1, "rxIndex": 4, "sessionStartTime": 1}])");
  store_.setRecords("user", R"([{"index": 1, "name": "zoe"}, {"index": 7, "name": "bert"},
                                {"index": 2, "name": "operator"}])");
  waitForRefresh();
  ASSERT_THAT(visitor_.rows(kSessions), SizeIs(3));
  EXPECT_THAT(visitor_.selected(kSessions), ElementsAre("bert"));
}

TEST_F(Dashboard, selectsNothingWhereTheSelectedSessionHasGone)
{
  putPeopleToWork();
  watch();
  visitor_.selectRow(kSessions, 1);
  store_.setRecords("userSession", R"([{"index": 12, "userIndex": 1, "rxIndex": 4, "sessionStartTime": 1}])");
  waitForRefresh();
  EXPECT_THAT(visitor_.rows(kSessions), SizeIs(1));
  EXPECT_THAT(visitor_.selected(kSessions), IsEmpty());
}

TEST_F(Dashboard, selectsTheEventThatCameToTheSelectedRow)
{
  setEvents({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kEvents, 1);
  setEvents({event(1, "info", "One"), event(2, "info", "Two"), event(3, "info", "Three")});
  waitForRefresh();
  EXPECT_THAT(messages(), ElementsAre("Three", "Two", "One"));
  const Visitor::Node *chosen = visitor_.page().findIf(
      [](const Visitor::Node &n) { return n.tag == "~r" && n.hasClass("Wt-selected"); });
  ASSERT_TRUE(chosen);
  EXPECT_EQ(chosen->children.back()->text, "Two");
}

TEST_F(Dashboard, selectsNoEventWhereTheSelectedRowHasGone)
{
  setEvents({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kEvents, 1);
  setEvents({event(2, "info", "Two")});
  waitForRefresh();
  EXPECT_THAT(visitor_.selected(kEvents), IsEmpty());
}

// ---- What a refresh sends

TEST_F(Dashboard, sendsNothingWhereNothingChanged)
{
  setEvents({event(1, "info", "One"), event(2, "error", "Two")});
  watch();
  visitor_.advance(15s);
  EXPECT_GE(store_.readCount("unacknowledgedAlerts"), 3U);
  EXPECT_EQ(visitor_.bytesReceived(), 0U);
}

TEST_F(Dashboard, sendsOnlyTheDurationsThatRun)
{
  putPeopleToWork();
  setEvents({event(1, "info", "One"), event(2, "error", "Two")});
  watch();
  visitor_.selectRow(kSessions, 1);
  visitor_.resetCounters();
  waitForRefresh();
  EXPECT_EQ(visitor_.rows(kSessions).back().back(), "1:10");
  EXPECT_EQ(visitor_.operationsReceived(), 2U);
  EXPECT_LE(visitor_.bytesReceived(), 2 * kBytesPerCell + kBytesBeside);
}

TEST_F(Dashboard, sendsOnlyTheCellThatChanged)
{
  setEvents({event(1, "info", "One"), event(2, "info", "Two"), event(3, "info", "Three")});
  watch();
  setEvents({event(1, "info", "One"), event(2, "info", "2"), event(3, "info", "Three")});
  waitForRefresh();
  EXPECT_THAT(messages(), ElementsAre("Three", "2", "One"));
  EXPECT_EQ(visitor_.operationsReceived(), 1U);
  EXPECT_LE(visitor_.bytesReceived(), kBytesPerCell + kBytesBeside);
}

// ---- Other ways to change it

TEST_F(Dashboard, losesItsEventsWhenTheHistoryIsCleared)
{
  setEvents({event(1, "info", "One")});
  watch();
  NevoApplication &application = site_.application();
  site_.manager->post(application.sessionId(), [&application] { application.dashViewEventLogClear(); });
  visitor_.advance(0s);
  EXPECT_THAT(messages(), IsEmpty());
}

TEST_F(Dashboard, foldsItsListsByAClickAndForLackOfRoom)
{
  putPeopleToWork();
  watch();
  Visitor::Node *sessions = visitor_.panel(kSessions);
  ASSERT_TRUE(visitor_.size(sessions, 900, 89));
  EXPECT_FALSE(visitor_.list(kSessions)->visible());
  EXPECT_EQ(sessions->get("*height"), "24px");
  ASSERT_TRUE(visitor_.size(sessions, 900, 90));
  EXPECT_TRUE(visitor_.list(kSessions)->visible());
  EXPECT_EQ(sessions->get("*height"), "90px");
  visitor_.click(kSessions);
  EXPECT_FALSE(visitor_.list(kSessions)->visible());
  visitor_.click(kSessions);
  EXPECT_TRUE(visitor_.list(kSessions)->visible());
}

TEST_F(Dashboard, keepsAFoldedListFoldedOverARefresh)
{
  watch();
  visitor_.click(kSessions);
  putPeopleToWork();
  waitForRefresh();
  EXPECT_FALSE(visitor_.list(kSessions)->visible());
}

// ---- A real switch

namespace
{

class DashboardOnSwitch : public testing::Test
{
protected:
  DashboardOnSwitch() : visitor_(site_)
  {
    visitor_.open();
    visitor_.logIn();
  }

  TestStore store_;
  NevoSite site_;
  Visitor visitor_;
};

} // namespace

TEST_F(DashboardOnSwitch, isEmptyWhileTheStoreIsAwayAndComesBackWithIt)
{
  const std::vector<Row> sessions = visitor_.rows(kSessions);
  const std::vector<Row> events = visitor_.rows(kEvents);
  ASSERT_FALSE(sessions.empty());
  ASSERT_FALSE(events.empty());
  store_.kill();
  visitor_.advance(5s);
  EXPECT_THAT(visitor_.rows(kSessions), IsEmpty());
  EXPECT_THAT(visitor_.rows(kEvents), IsEmpty());
  EXPECT_FALSE(visitor_.hasQuit());
  EXPECT_TRUE(visitor_.shows("Dashboard"));
  store_.restart();
  visitor_.advance(5s);
  EXPECT_THAT(visitor_.rows(kSessions), SizeIs(sessions.size()));
  EXPECT_EQ(visitor_.rows(kEvents), events);
}

TEST_F(DashboardOnSwitch, livesWithAnAnswerThatIsCutInTheMiddle)
{
  const std::size_t count = visitor_.rows(kSessions).size();
  store_.control({"cut", "3"});
  visitor_.advance(5s);
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(10s);
  EXPECT_THAT(visitor_.rows(kSessions), SizeIs(count));
}

TEST_F(DashboardOnSwitch, showsAnEventThatArises)
{
  const std::size_t count = visitor_.rows(kEvents).size();
  ASSERT_FALSE(store_.control({"alert", "FanFault"}).failed);
  visitor_.advance(5s);
  EXPECT_GT(visitor_.rows(kEvents).size(), count);
}

TEST_F(DashboardOnSwitch, showsANameThatHoldsMarkupAsText)
{
  const std::string hostile = "<b>Desk</b> & <script>";
  for (unsigned rx = 1; rx <= 16; ++rx)
    ASSERT_TRUE(store_.set("rx", rx, "name", hostile));
  visitor_.advance(5s);
  ASSERT_FALSE(visitor_.rows(kSessions).empty());
  for (const Row &row : visitor_.rows(kSessions))
    EXPECT_EQ(row[1], hostile);
}
