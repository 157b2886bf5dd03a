// SPDX-License-Identifier: MIT
#include "SessionRecord.h"

#include "Clock.h"
#include "StoreTest.h"

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

time_t fixedTime()
{
  return 1000000100;
}

using Line = std::vector<std::string>;

std::vector<Line> linesOf(const std::optional<std::vector<SessionRecord>> &sessions)
{
  std::vector<Line> lines;
  for (const SessionRecord &session : sessions.value_or(std::vector<SessionRecord>()))
    lines.push_back({std::to_string(session.index), session.user, session.receiver, session.transmitter,
                     session.mode, session.durationText()});
  return lines;
}

} // namespace

class SessionRecords : public StoreTest
{
protected:
  SessionRecords()
  {
    Clock_setSource(fixedTime);
    store.setRecords("user",
                     R"([{"index": 3, "name": "anna"}, {"index": 4, "name": "", "mgrName": "m-bert"}])");
    store.setRecords("rx", R"([{"index": 1, "name": "Desk 1", "eid": "RRRRRR-000001"},
                               {"index": 2, "name": "", "eid": "RRRRRR-000002"}])");
    store.setRecords("tx", R"([{"index": 7, "name": "Tower", "eid": "TTTTTT-000007"},
                               {"index": 8, "name": "", "eid": "TTTTTT-000008"}])");
    store.setRecords("userSession",
                     R"([{"index": 11, "rxIndex": 1, "userIndex": 3, "sessionStartTime": 1000000000},
                         {"index": 12, "rxIndex": 2, "userIndex": 4, "sessionStartTime": 1000000001}])");
    store.setRecords("connection", R"([{"index": 21, "rxIndex": 1, "txIndex": 8, "mode": "share_mode",
                                        "sessionStartTime": 1000000040}])");
  }
  ~SessionRecords() override { Clock_setSource(nullptr); }
};

TEST_F(SessionRecords, ofLoginsTellWhoWorksWhereWithWhatAndForHowLong)
{
  EXPECT_THAT(linesOf(SessionRecord::readLogins()),
              ElementsAre(Line({"11", "anna", "Desk 1", "EID - TTTTTT-000008", shown("Shared"), "1:00"}),
                          Line({"12", "m-bert", "EID - RRRRRR-000002", "", "", "1:39"})));
}

TEST_F(SessionRecords, ofConnectionsTellTheSame)
{
  EXPECT_THAT(linesOf(SessionRecord::readConnections()),
              ElementsAre(Line({"21", "anna", "Desk 1", "EID - TTTTTT-000008", shown("Shared"), "1:00"})));
}

TEST_F(SessionRecords, takeTheFirstConnectionAndTheFirstLoginOfAReceiver)
{
  store.setRecords("connection", R"([{"index": 21, "rxIndex": 1, "txIndex": 7, "mode": "private_mode"},
                                     {"index": 22, "rxIndex": 1, "txIndex": 8, "mode": "share_mode"}])");
  store.setRecords("userSession", R"([{"index": 11, "rxIndex": 1, "userIndex": 3},
                                      {"index": 12, "rxIndex": 1, "userIndex": 4}])");
  const auto sessions = SessionRecord::readLogins();
  ASSERT_THAT(*sessions, SizeIs(2));
  for (const SessionRecord &session : *sessions) {
    EXPECT_EQ(session.user, "anna");
    EXPECT_EQ(session.transmitter, "Tower");
    EXPECT_EQ(session.mode, shown("Private"));
  }
}

TEST_F(SessionRecords, leaveEmptyWhatTheStoreDoesNotKnow)
{
  store.setRecords("connection", R"([{"index": 21, "rxIndex": 9, "txIndex": 9, "mode": "garbage",
                                      "sessionStartTime": 1000000040}])");
  EXPECT_THAT(linesOf(SessionRecord::readConnections()),
              ElementsAre(Line({"21", "", "", "", shown("Unknown"), "1:00"})));
}

TEST_F(SessionRecords, leaveEmptyWhatCannotBeRead)
{
  store.hangUp("GET", "connection");
  store.fail("GET", "rx", R"([{"errno": 1}])");
  EXPECT_THAT(linesOf(SessionRecord::readLogins()), ElementsAre(Line({"11", "anna", "", "", "", "1:40"}),
                                                                Line({"12", "m-bert", "", "", "", "1:39"})));
}

TEST_F(SessionRecords, beginNoEarlierThanNowForADeviceWhoseClockRunsAhead)
{
  store.setRecords("connection", R"([{"index": 21, "rxIndex": 1, "txIndex": 8, "mode": "share_mode",
                                      "sessionStartTime": 1000000101}])");
  EXPECT_EQ(SessionRecord::readConnections()->front().durationText(), "0:00");
}

// With whatever client library: a request for each resource, not for each row.
TEST_F(SessionRecords, costAsManyRequestsForAThousandRowsAsForOne)
{
  std::string sessions;
  std::string connections;
  for (int i = 1; i <= 1000; ++i) {
    const std::string number = std::to_string(i);
    sessions += std::string(i > 1 ? "," : "") + R"({"index": )" + number + R"(, "rxIndex": )" + number +
                R"(, "userIndex": 3})";
    connections += std::string(i > 1 ? "," : "") + R"({"index": )" + number + R"(, "rxIndex": )" + number +
                   R"(, "txIndex": 7, "mode": "share_mode"})";
  }
  store.setRecords("userSession", "[" + sessions + "]");
  store.setRecords("connection", "[" + connections + "]");
  EXPECT_THAT(*SessionRecord::readLogins(), SizeIs(1000));
  EXPECT_THAT(store.requests(), SizeIs(6));
  store.forgetRequests();
  EXPECT_THAT(*SessionRecord::readConnections(), SizeIs(1000));
  EXPECT_THAT(store.requests(), SizeIs(5));
}

TEST_F(SessionRecords, askForNoNamesWhereThereIsNoSession)
{
  store.setRecords("userSession", "[]");
  store.setRecords("connection", "[]");
  EXPECT_THAT(*SessionRecord::readLogins(), IsEmpty());
  EXPECT_THAT(*SessionRecord::readConnections(), IsEmpty());
  EXPECT_THAT(store.requests(), ElementsAre(R"({"method":"GET","resource":"userSession",)"
                                            R"("select":["index","index","rxIndex","sessionStartTime"]})",
                                            R"({"method":"GET","resource":"connection"})"));
}

TEST_F(SessionRecords, areUnreadRatherThanEmptyAfterAFailure)
{
  store.fail("GET", "connection", R"([{"errno": 1}])");
  store.hangUp("GET", "userSession");
  LogCapture log;
  EXPECT_FALSE(SessionRecord::readConnections());
  EXPECT_FALSE(SessionRecord::readLogins());
  EXPECT_NE(log.text().find("1 logZelErrors: " + shown("General failure") + "."), std::string::npos);
}

TEST_F(SessionRecords, areEmptyWithoutAWordWhereTheStoreHasNone)
{
  store.fail("GET", "connection", R"([{"errno": 1009}])");
  LogCapture log;
  ASSERT_TRUE(SessionRecord::readConnections());
  EXPECT_THAT(*SessionRecord::readConnections(), IsEmpty());
  EXPECT_EQ(log.text().find("logZelErrors"), std::string::npos);
}
