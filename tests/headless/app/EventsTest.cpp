// SPDX-License-Identifier: MIT
#include "Convert.h"
#include "NevoApplication.h"
#include "NevoSite.h"
#include "SwitchScript.h"
#include "TestStore.h"
#include "WEventViewHistList.h"

#include <Wt/WContainerWidget>
#include <Wt/WStandardItemModel>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const char kUnacked[] = "Unacknowledged Events";
const char kHistory[] = "Event History";
const char kControlKey[] = "alertsControl";
constexpr int kControl = 2; // the modifier that adds a row to a selection
constexpr std::size_t kBytesPerCell = 60;
constexpr std::size_t kBytesBeside = 100;

std::string number(long value)
{
  return std::to_string(value);
}

std::string event(int instance, const std::string &severity, const std::string &message,
                  const std::string &eid = "RRRRRR-000003")
{
  return R"({"instanceId": )" + number(instance) + R"(, "date": )" + number(1000000000 + instance) +
         R"(, "originatorEid": ")" + eid + R"(", "severity": ")" + severity + R"(", "alertMsg": ")" +
         message + "\"}";
}

std::string listOf(const std::vector<std::string> &events)
{
  std::string json = "[";
  for (const std::string &one : events)
    json += (json.size() > 1 ? "," : "") + one;
  return json + "]";
}

// When the event of that instance came, as the system writes it.
std::string dateOf(int instance)
{
  char buffer[64];
  Convert_dateTimeStampToString(1000000000 + instance, buffer, sizeof buffer);
  return buffer;
}

std::string csv(const std::string &date, const std::string &type, const std::string &message,
                const std::string &eid = "RRRRRR-000003")
{
  return '"' + date + "\",\"" + type + "\",\"" + eid + "\",\"" + message + "\"\n";
}

// Takes what a resource answers.
class Answer : public Wt::Engine::ResourceResponse
{
public:
  void setStatus(int value) override { status = value; }
  void addHeader(const std::string &name, const std::string &value) override { headers[name] = value; }
  void setMimeType(const std::string &value) override { mimeType = value; }
  void setContentLength(std::uint64_t) override {}
  std::ostream &out() override { return body; }
  void finish() override { finished = true; }
  bool connected() const override { return true; }

  int status = 200;
  std::map<std::string, std::string> headers;
  std::string mimeType;
  std::ostringstream body;
  bool finished = false;
};

// An administrator at the events tab.
class EventsVisitor : public Visitor
{
public:
  explicit EventsVisitor(NevoSite &site) : Visitor(site), site_(site) {}

  void openEvents()
  {
    open();
    logIn();
    openTab("Events");
  }
  void waitForRefresh() { advance(5s); }
  // Presses a button, the one that lies on top if there are several of that text.
  void press(const std::string &text)
  {
    const auto found =
        page().findAll([&](const Node &n) { return n.tag == "button" && n.text == text && n.visible(); });
    ASSERT_FALSE(found.empty()) << text;
    click(found.back());
  }

  Row messages(const std::string &list) const
  {
    Row texts;
    for (const Row &row : rows(list))
      texts.push_back(row.back());
    return texts;
  }
  void addRow(const std::string &list, int row)
  {
    event(this->list(list), "table:down",
          "{\"a\":[" + number(row) + ",1],\"b\":1,\"m\":" + number(kControl) + "}");
  }
  // The values of the details, from the type to the message.
  Row details() const
  {
    Row texts;
    for (const Node *cell : page().findAll(
             [](const Node &n) { return n.hasClass("nevo-attribute-table-read-only-cell") && n.visible(); }))
      texts.push_back(cell->allText());
    return texts;
  }
  std::string downloadUrl() const
  {
    const std::string link = button("Save")->get("!link");
    const std::size_t from = link.find("\"u\":\"") + 5;
    return link.substr(from, link.find('"', from) - from);
  }

  // What a browser would get at the address of the download.
  std::shared_ptr<Answer> download(const std::string &url)
  {
    auto answer = std::make_shared<Answer>();
    askFor(url, answer);
    site_.scheduler.run();
    return answer;
  }
  void askFor(const std::string &url, const std::shared_ptr<Answer> &answer)
  {
    Wt::Engine::RequestHead request;
    request.method = "GET";
    request.query = url.substr(url.find('?') + 1);
    std::istringstream parameters(request.query);
    for (std::string one; std::getline(parameters, one, '&');)
      request.parameters.emplace(one.substr(0, one.find('=')), one.substr(one.find('=') + 1));
    site_.manager->resource(request, {}, 0, answer);
  }
  std::string file() { return download(downloadUrl())->body.str(); }

private:
  NevoSite &site_;
};

// The events of a switch that does as the test says.
class Events : public testing::Test
{
protected:
  Events() : visitor_(site_)
  {
    setUnacked({});
    setHistory({});
    wantWarning(true);
  }

  void wantWarning(bool wanted)
  {
    store_.setRecords("user", R"([{"index": 2, "name": "operator", "passwordIsInitialized": "is_true",
                                   "enableClearEventHistoryWarning": ")" +
                                  std::string(wanted ? "enabled" : "disabled") + "\"}]");
  }

  void setUnacked(const std::vector<std::string> &events)
  {
    store_.setRecords("unacknowledgedAlerts", listOf(events));
  }
  void setHistory(const std::vector<std::string> &events)
  {
    store_.setRecords("historicalAlerts", listOf(events));
  }
  void watch()
  {
    visitor_.openEvents();
    store_.forgetRequests();
    visitor_.resetCounters();
  }
  // Runs a function within the session now.
  void within(const std::function<void(NevoApplication &)> &action)
  {
    NevoApplication &application = site_.application();
    site_.manager->post(application.sessionId(), [&] { action(application); });
    visitor_.advance(0s);
  }
  // The first widget of that class below another.
  template <class Widget> static Widget *find(Wt::WObject &from)
  {
    for (Wt::WObject *child : from.children()) {
      if (Widget *found = dynamic_cast<Widget *>(child))
        return found;
      if (Widget *found = find<Widget>(*child))
        return found;
    }
    return nullptr;
  }
  // What was asked of the store's alert control.
  std::vector<std::string> commands()
  {
    std::vector<std::string> found;
    for (const std::string &request : store_.requests("SET"))
      if (request.find(kControlKey) != std::string::npos)
        found.push_back(request);
    return found;
  }

  SwitchScript store_;
  NevoSite site_;
  EventsVisitor visitor_;
};

} // namespace

TEST_F(Events, listWhatCameWhenFromWhereWithTheNewestOnTop)
{
  setUnacked(
      {event(9, "info", "Nine"), event(11, "error", "Eleven", "TTTTTT-000005"), event(10, "warning", "Ten")});
  setHistory({event(7, "warning", "Seven"), event(8, "info", "Eight")});
  watch();
  EXPECT_THAT(visitor_.rows(kUnacked), ElementsAre(Row({dateOf(11), "Error", "TTTTTT-000005", "Eleven"}),
                                                   Row({dateOf(10), "Warning", "RRRRRR-000003", "Ten"}),
                                                   Row({dateOf(9), "Information", "RRRRRR-000003", "Nine"})));
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("Eight", "Seven"));
}

TEST_F(Events, nameTheirColumnsAndTheirDetails)
{
  watch();
  Row headings;
  for (const Visitor::Node *cell : visitor_.page().findAll(
           [](const Visitor::Node &n) { return n.get("role") == "columnheader" && n.visible(); }))
    headings.push_back(cell->allText());
  EXPECT_THAT(headings, ElementsAre("Date/Time", "Type", "Originator EID", "Message", "Date/Time", "Type",
                                    "Originator EID", "Message"));
  const std::string panel = visitor_.panel("Event Details")->allText();
  for (const char *label :
       {"Details", "Field", "Value", "Type", "Date and Time", "Originator EID", "Message"})
    EXPECT_THAT(panel, HasSubstr(label));
}

TEST_F(Events, sayInsteadOfAnEmptyListWhyItIsEmpty)
{
  watch();
  EXPECT_EQ(visitor_.list(kUnacked)->get("data-empty"), "There are no unacknowledged events.");
  EXPECT_EQ(visitor_.list(kHistory)->get("data-empty"), "The event history is empty.");
}

TEST_F(Events, callASeverityThatNobodyKnowsUnknown)
{
  setUnacked({event(1, "odd", "One")});
  setHistory({event(1, "odd", "One")});
  watch();
  EXPECT_EQ(visitor_.rows(kUnacked)[0][1], "Unknown");
  EXPECT_EQ(visitor_.rows(kHistory)[0][1], "Unknown");
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Unknown", "One"));
}

TEST_F(Events, showMarkupInATextAsText)
{
  const std::string hostile = "<a href='javascript:x'>One</a> & <script>";
  setUnacked({event(1, "<u>", hostile, "<b>eid</b>")});
  watch();
  visitor_.selectRow(kUnacked, 0);
  EXPECT_THAT(visitor_.details(), ElementsAre("Unknown", dateOf(1), "<b>eid</b>", hostile));
  EXPECT_EQ(visitor_.messages(kUnacked).front(), hostile);
}

TEST_F(Events, areEmptyWhileTheStoreRefusesToTell)
{
  setUnacked({event(1, "info", "One")});
  setHistory({event(2, "info", "Two")});
  watch();
  store_.fail("GET", "unacknowledgedAlerts", R"([{"errno": 1}])");
  store_.hangUp("GET", "historicalAlerts");
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.rows(kUnacked), IsEmpty());
  EXPECT_THAT(visitor_.rows(kHistory), IsEmpty());
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_FALSE(visitor_.hasQuit());
}

// ---- Refresh

TEST_F(Events, areReadEveryFiveSecondsWhileTheirTabShows)
{
  watch();
  setUnacked({event(1, "info", "One")});
  setHistory({event(1, "info", "One")});
  visitor_.advance(4999ms);
  EXPECT_THAT(visitor_.rows(kUnacked), IsEmpty());
  visitor_.advance(1ms);
  EXPECT_THAT(visitor_.messages(kUnacked), ElementsAre("One"));
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("One"));
}

TEST_F(Events, restWhileAnotherTabShowsAndAreReadOnTheWayBack)
{
  watch();
  visitor_.openTab("Dashboard");
  store_.forgetRequests();
  visitor_.advance(15s);
  EXPECT_EQ(store_.readCount("historicalAlerts"), 0U);
  EXPECT_GT(store_.readCount("userSession"), 0U);
  setHistory({event(1, "info", "One")});
  visitor_.openTab("Events");
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("One"));
  store_.forgetRequests();
  visitor_.advance(15s);
  EXPECT_EQ(store_.readCount("historicalAlerts"), 3U);
  EXPECT_EQ(store_.readCount("userSession"), 0U);
}

TEST_F(Events, askTheStoreForWhatTheyShowOnly)
{
  watch();
  visitor_.waitForRefresh();
  for (const std::string &request : store_.requests("GET"))
    EXPECT_THAT(request, HasSubstr(R"("select":["date","originatorEid","severity","alertMsg"])"));
  EXPECT_THAT(store_.requests(), SizeIs(2));
}

TEST_F(Events, sendNothingWhereNothingChanged)
{
  setUnacked({event(1, "info", "One"), event(2, "error", "Two")});
  setHistory({event(1, "info", "One"), event(2, "error", "Two")});
  watch();
  visitor_.selectRow(kUnacked, 1);
  visitor_.resetCounters();
  visitor_.advance(15s);
  EXPECT_EQ(visitor_.bytesReceived(), 0U);
}

TEST_F(Events, sendOnlyTheCellThatChanged)
{
  setHistory({event(1, "info", "One"), event(2, "info", "Two"), event(3, "info", "Three")});
  watch();
  setHistory({event(1, "info", "One"), event(2, "info", "2"), event(3, "info", "Three")});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("Three", "2", "One"));
  EXPECT_EQ(visitor_.operationsReceived(), 1U);
  EXPECT_LE(visitor_.bytesReceived(), kBytesPerCell + kBytesBeside);
}

TEST_F(Events, stayUntouchedInTheirModelWhereNothingChanged)
{
  std::vector<std::string> events;
  for (int i = 1; i <= 2000; ++i)
    events.push_back(event(i, "info", "Event " + number(i)));
  setHistory(events);
  watch();
  int changes = 0;
  within([&changes](NevoApplication &application) {
    WEventViewHistList *list = find<WEventViewHistList>(*application.root());
    ASSERT_TRUE(list);
    const auto count = std::bind([&changes] { ++changes; });
    list->model->rowsRemoved().connect(count);
    list->model->rowsInserted().connect(count);
    list->model->dataChanged().connect(count);
    list->model->layoutChanged().connect(count);
  });
  visitor_.waitForRefresh();
  EXPECT_EQ(changes, 0);
  events.back() = event(2000, "error", "Event 2000");
  setHistory(events);
  visitor_.waitForRefresh();
  EXPECT_GT(changes, 0);
  EXPECT_EQ(visitor_.rows(kHistory)[0][1], "Error");
}

TEST_F(Events, keepTheOrderThatThePersonChose)
{
  setHistory({event(1, "info", "B"), event(2, "info", "C"), event(3, "info", "A")});
  watch();
  visitor_.event(visitor_.list(kHistory), "table:sort", "{\"a\":[4]}");
  ASSERT_THAT(visitor_.messages(kHistory), ElementsAre("A", "B", "C"));
  setHistory({event(1, "info", "B"), event(2, "info", "C"), event(3, "info", "A"), event(4, "info", "AB")});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("A", "AB", "B", "C"));
}

// ---- Selection and details

TEST_F(Events, tellAllOfTheSelectedOne)
{
  const std::string longText(500, 'x');
  setUnacked({event(1, "info", "One"), event(2, "warning", longText)});
  setHistory({event(1, "error", "Past")});
  watch();
  EXPECT_THAT(visitor_.details(), ElementsAre("", "", "", ""));
  visitor_.selectRow(kUnacked, 0);
  EXPECT_THAT(visitor_.details(), ElementsAre("Warning", dateOf(2), "RRRRRR-000003", longText));
  visitor_.selectRow(kHistory, 0);
  EXPECT_THAT(visitor_.details(), ElementsAre("Error", dateOf(1), "RRRRRR-000003", "Past"));
}

TEST_F(Events, areSelectedInOneListOnly)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two")});
  setHistory({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kUnacked, 0);
  EXPECT_THAT(visitor_.selected(kUnacked), SizeIs(1));
  visitor_.selectRow(kHistory, 1);
  EXPECT_THAT(visitor_.selected(kUnacked), IsEmpty());
  EXPECT_THAT(visitor_.selected(kHistory), ElementsAre(dateOf(1)));
  visitor_.selectRow(kUnacked, 0);
  EXPECT_THAT(visitor_.selected(kUnacked), ElementsAre(dateOf(2)));
  EXPECT_THAT(visitor_.selected(kHistory), IsEmpty());
  // The lists still hear of selections after having been taken theirs away.
  visitor_.selectRow(kHistory, 0);
  EXPECT_THAT(visitor_.selected(kUnacked), IsEmpty());
  EXPECT_EQ(visitor_.details().back(), "Two");
}

TEST_F(Events, canBeAcknowledgedOnlyWhereOneIsSelectedThatWaitsForIt)
{
  setUnacked({event(1, "info", "One")});
  setHistory({event(1, "info", "One")});
  watch();
  EXPECT_FALSE(visitor_.canPress("Acknowledge"));
  visitor_.selectRow(kUnacked, 0);
  EXPECT_TRUE(visitor_.canPress("Acknowledge"));
  visitor_.selectRow(kHistory, 0);
  EXPECT_FALSE(visitor_.canPress("Acknowledge"));
}

TEST_F(Events, canBeAcknowledgedAllWhereThereIsOne)
{
  watch();
  EXPECT_FALSE(visitor_.canPress("Acknowledge All"));
  EXPECT_FALSE(visitor_.canPress("Acknowledge"));
  setUnacked({event(1, "info", "One")});
  visitor_.waitForRefresh();
  EXPECT_TRUE(visitor_.canPress("Acknowledge All"));
  EXPECT_FALSE(visitor_.canPress("Acknowledge"));
  setUnacked({});
  visitor_.waitForRefresh();
  EXPECT_FALSE(visitor_.canPress("Acknowledge All"));
}

TEST_F(Events, stayBlankInTheDetailsWhereSeveralAreSelected)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two"), event(3, "info", "Three")});
  watch();
  visitor_.selectRow(kUnacked, 0);
  visitor_.addRow(kUnacked, 2);
  EXPECT_THAT(visitor_.selected(kUnacked), SizeIs(2));
  EXPECT_THAT(visitor_.details(), ElementsAre("", "", "", ""));
  EXPECT_TRUE(visitor_.canPress("Acknowledge"));
}

TEST_F(Events, ofThePastAreSelectedOneByOne)
{
  setHistory({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kHistory, 0);
  visitor_.addRow(kHistory, 1);
  EXPECT_THAT(visitor_.selected(kHistory), SizeIs(1));
}

TEST_F(Events, keepTheSelectionAndItsDetailsWhereverTheRowMoves)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kUnacked, 1);
  setUnacked({event(1, "error", "One more"), event(2, "info", "Two"), event(3, "info", "Three")});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.selected(kUnacked), ElementsAre(dateOf(1)));
  EXPECT_THAT(visitor_.details(), ElementsAre("Error", dateOf(1), "RRRRRR-000003", "One more"));
  EXPECT_TRUE(visitor_.canPress("Acknowledge"));
}

TEST_F(Events, thatWentWhileSelectedLeaveTheirDetailsUntilTheRefreshAfter)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kUnacked, 1);
  setUnacked({event(2, "info", "Two")});
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.selected(kUnacked), IsEmpty());
  EXPECT_EQ(visitor_.details().back(), "One");
  EXPECT_TRUE(visitor_.canPress("Acknowledge"));
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.details(), ElementsAre("", "", "", ""));
  EXPECT_FALSE(visitor_.canPress("Acknowledge"));
}

// ---- Actions

TEST_F(Events, areAcknowledgedOneByOneInTheOrderOfTheirRows)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two"), event(3, "info", "Three")});
  watch();
  visitor_.selectRow(kUnacked, 2);
  visitor_.addRow(kUnacked, 0);
  // The first one is refused: somebody else was quicker.
  store_.fail("SET", kControlKey, R"([{"errno": 1009}])");
  visitor_.press("Acknowledge");
  ASSERT_THAT(commands(), SizeIs(2));
  EXPECT_THAT(commands()[0], HasSubstr(R"("alertInstanceId":3,"alertsAction":"ack_specific")"));
  EXPECT_THAT(commands()[1], HasSubstr(R"("alertInstanceId":1,"alertsAction":"ack_specific")"));
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_EQ(store_.readCount("unacknowledgedAlerts"), 1U);
}

TEST_F(Events, areNotAcknowledgedWhereNoneIsSelectedAnyMore)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  visitor_.selectRow(kUnacked, 1);
  setUnacked({event(2, "info", "Two")});
  visitor_.waitForRefresh();
  visitor_.press("Acknowledge");
  EXPECT_THAT(commands(), IsEmpty());
}

TEST_F(Events, areAcknowledgedAll)
{
  setUnacked({event(1, "info", "One"), event(2, "info", "Two")});
  watch();
  setUnacked({});
  visitor_.press("Acknowledge All");
  ASSERT_THAT(commands(), SizeIs(1));
  EXPECT_THAT(commands()[0], HasSubstr(R"("params":{"alertsAction":"ack_all"})"));
  EXPECT_THAT(visitor_.rows(kUnacked), IsEmpty());
  EXPECT_FALSE(visitor_.canPress("Acknowledge All"));
}

TEST_F(Events, ofThePastAreClearedOnlyWhenThePersonSaysSo)
{
  setHistory({event(1, "info", "One")});
  watch();
  visitor_.press("Clear");
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Confirm Clear"));
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Are you sure you want to clear the event history?"));
  visitor_.press("Cancel");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_THAT(commands(), IsEmpty());

  visitor_.press("Clear");
  setHistory({});
  visitor_.press("Clear");
  ASSERT_THAT(commands(), SizeIs(1));
  EXPECT_THAT(commands()[0], HasSubstr(R"("params":{"alertsAction":"clear_history"})"));
  EXPECT_THAT(visitor_.rows(kHistory), IsEmpty());
}

TEST_F(Events, areClearedWithoutAWordWhereThePersonWantsNone)
{
  wantWarning(false);
  watch();
  visitor_.press("Clear");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_THAT(commands(), SizeIs(1));
}

TEST_F(Events, rememberThatThePersonWantsNoWarningEvenWhenNothingIsCleared)
{
  watch();
  visitor_.press("Clear");
  visitor_.check(visitor_.byTag("input"), true);
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_FALSE(visitor_.dialog());
  ASSERT_THAT(store_.requests("SET"), SizeIs(1));
  EXPECT_THAT(store_.requests("SET")[0], HasSubstr(R"("enableClearEventHistoryWarning":"disabled")"));
}

// ---- The download

TEST_F(Events, areDownloadedAsAFileOfTheStoresOrder)
{
  setHistory(
      {event(9, "info", "Nine"), event(11, "error", "Eleven", "TTTTTT-000005"), event(10, "warning", "")});
  watch();
  const auto answer = visitor_.download(visitor_.downloadUrl());
  EXPECT_EQ(answer->status, 200);
  EXPECT_EQ(answer->mimeType, "plain/text");
  EXPECT_EQ(answer->headers["Content-Disposition"], "attachment; filename=\"event-history.csv\"");
  EXPECT_EQ(answer->body.str(), csv(dateOf(9), "Information", "Nine") +
                                    csv(dateOf(11), "Error", "Eleven", "TTTTTT-000005") +
                                    csv(dateOf(10), "Warning", ""));
  EXPECT_TRUE(answer->finished);
}

TEST_F(Events, areDownloadedAsTheyAreNow)
{
  watch();
  EXPECT_EQ(visitor_.file(), "");
  setHistory({event(1, "info", "One")});
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Information", "One"));
}

TEST_F(Events, areCutAtFourHundredBytesInTheFileButNotInTheList)
{
  const std::string longText = std::string(250, 'x') + std::string(250, 'y');
  setHistory({event(1, "info", longText), event(2, "info", longText.substr(0, 400))});
  watch();
  EXPECT_EQ(visitor_.messages(kHistory).back(), longText);
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Information", longText.substr(0, 400)) +
                                 csv(dateOf(2), "Information", longText.substr(0, 400)));
}

TEST_F(Events, areNotCutWithinALetter)
{
  const std::string start(398, 'x');
  setHistory({event(1, "info", start + "\xE2\x82\xAC"), event(2, "info", start + "\xC3\xA9\xC3\xA9"),
              event(3, "info", start + "x\xF0\x9F\x94\xA5"),
              event(4, "info", start.substr(1) + "\xE2\x82\xAC")});
  watch();
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Information", start) +
                                 csv(dateOf(2), "Information", start + "\xC3\xA9") +
                                 csv(dateOf(3), "Information", start + "x") +
                                 csv(dateOf(4), "Information", start.substr(1) + "\xE2\x82\xAC"));
}

TEST_F(Events, haveSingleQuotesInTheFileForDoubleOnesOfTheMessage)
{
  setHistory({event(1, "info", R"(\"Fan\", it's \"2\")")});
  watch();
  EXPECT_EQ(visitor_.messages(kHistory).front(), "\"Fan\", it's \"2\"");
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Information", "'Fan', it's '2'"));
}

TEST_F(Events, endTheFileWhereOneHasNoOriginator)
{
  setHistory({event(1, "info", "One"),
              R"({"instanceId": 2, "date": 1000000002, "severity": "error", "alertMsg": "Two"})",
              event(3, "info", "Three")});
  watch();
  EXPECT_THAT(visitor_.messages(kHistory), ElementsAre("Three", "Two", "One"));
  EXPECT_EQ(visitor_.file(), csv(dateOf(1), "Information", "One") + '"' + dateOf(2) + "\",\"Error\",\"");
}

TEST_F(Events, areAnEmptyFileWhereTheStoreTellsNone)
{
  setHistory({event(1, "info", "One")});
  watch();
  store_.fail("GET", "historicalAlerts", R"([{"errno": 1}])");
  const auto refused = visitor_.download(visitor_.downloadUrl());
  EXPECT_EQ(refused->body.str(), "");
  EXPECT_EQ(refused->mimeType, "plain/text");
  store_.hangUp("GET", "historicalAlerts");
  EXPECT_EQ(visitor_.file(), "");
  EXPECT_FALSE(visitor_.hasQuit());
}

TEST_F(Events, areNotThereToBeDownloadedAfterTheLogOut)
{
  setHistory({event(1, "info", "One")});
  watch();
  const std::string url = visitor_.downloadUrl();
  visitor_.click(visitor_.link("Log out"));
  const auto answer = visitor_.download(url);
  EXPECT_EQ(answer->status, 404);
  EXPECT_EQ(answer->body.str(), "");
}

TEST_F(Events, areDownloadedByNobodyWhoHasOnlyASessionOfHisOwn)
{
  setHistory({event(1, "info", "One")});
  watch();
  const std::string url = visitor_.downloadUrl();
  EventsVisitor stranger(site_);
  stranger.open();
  ASSERT_TRUE(stranger.atLogin());
  const auto guessed = [&](const std::string &name, const std::string &value) {
    std::string other = url;
    const std::size_t from = other.find(name + "=") + name.size() + 1;
    return other.replace(from, other.find('&', from) - from, value);
  };
  const std::string own = site_.application().sessionId();
  for (const std::string &tried : {guessed("wtd", own), guessed("rand", "0"), guessed("rand", "")}) {
    const auto answer = stranger.download(tried);
    EXPECT_EQ(answer->status, 404) << tried;
    EXPECT_EQ(answer->body.str(), "");
  }
}

// ---- A real switch

namespace
{

class EventsOnSwitch : public testing::Test
{
protected:
  EventsOnSwitch() : visitor_(site_) { visitor_.openEvents(); }

  TestStore store_;
  NevoSite site_;
  EventsVisitor visitor_;
};

} // namespace

TEST_F(EventsOnSwitch, showWhatAroseAndDropWhatTheOtherAdministratorAcknowledged)
{
  EventsVisitor other(site_);
  other.openEvents();
  ASSERT_FALSE(store_.control({"alert", "FanFault"}).failed);
  visitor_.waitForRefresh();
  other.waitForRefresh();
  ASSERT_EQ(visitor_.messages(kUnacked), other.messages(kUnacked));
  const std::size_t count = visitor_.rows(kUnacked).size();
  visitor_.selectRow(kUnacked, 0);
  other.selectRow(kUnacked, 0);
  visitor_.press("Acknowledge");
  EXPECT_THAT(visitor_.rows(kUnacked), SizeIs(count - 1));
  other.press("Acknowledge");
  EXPECT_THAT(other.rows(kUnacked), SizeIs(count - 1));
  EXPECT_FALSE(other.dialog());
  EXPECT_FALSE(other.hasQuit());
}

TEST_F(EventsOnSwitch, areEmptyWhileTheStoreIsAwayAndComeBackWithIt)
{
  store_.control({"alert", "FanFault"});
  visitor_.waitForRefresh();
  const std::vector<Row> history = visitor_.rows(kHistory);
  ASSERT_FALSE(history.empty());
  store_.kill();
  visitor_.waitForRefresh();
  EXPECT_THAT(visitor_.rows(kHistory), IsEmpty());
  EXPECT_FALSE(visitor_.canPress("Acknowledge All"));
  EXPECT_EQ(visitor_.file(), "");
  store_.restart();
  visitor_.waitForRefresh();
  EXPECT_EQ(visitor_.rows(kHistory), history);
}
