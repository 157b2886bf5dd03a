// SPDX-License-Identifier: MIT
#include "StoreTest.h"
#include "ZelReq.h"
#include "ZelRspUtil.h"
#include "data/AlertKinds.h"

namespace
{

class Alerts : public StoreTest
{
protected:
  unsigned raise(const char *kind)
  {
    const TestStore::Outcome outcome = store.control({"alert", kind});
    return outcome.failed ? 0 : static_cast<unsigned>(std::stoul(outcome.text));
  }
};

TEST_F(Alerts, theWordsThatTheInterfaceSelectsBringTheInstanceAlong)
{
  json_t *response =
      ZelReq_unacknowledgedAlertsRetrieve(client, "\"date\",\"originatorEid\",\"severity\",\"alertMsg\"");
  ASSERT_NE(nullptr, response);
  ASSERT_GT(ZelRspUtil_numEntries(response), 0);
  EXPECT_GT(ZelRspUtil_getIndexedIntegerParam(response, 0, "instanceId"), 0);
  EXPECT_GT(ZelRspUtil_getIndexedIntegerParam(response, 0, "date"), 1000000);
  EXPECT_NE(nullptr, ZelRspUtil_getIndexedStringParam(response, 0, "alertMsg"));
  ZelRspUtil_free(response);
}

TEST_F(Alerts, anAcknowledgedOneStaysInTheHistory)
{
  const unsigned instance = raise("FanFault");
  ASSERT_NE(0u, instance);
  EXPECT_EQ(0, set("alertsControl", 0, {{"alertsAction", "ack_specific"}, {"alertInstanceId", instance}}));
  EXPECT_FALSE(exists("unacknowledgedAlerts", instance));
  EXPECT_TRUE(exists("historicalAlerts", instance));
  EXPECT_EQ(7, set("alertsControl", 0, {{"alertsAction", "ack_specific"}, {"alertInstanceId", instance}}));
  EXPECT_EQ(1007, set("alertsControl", 0, {{"alertsAction", "ack_specific"}}));
}

TEST_F(Alerts, clearingTheHistoryLeavesTheUnacknowledgedOnes)
{
  const unsigned before = rows("unacknowledgedAlerts");
  ASSERT_GT(before, 0u);
  EXPECT_EQ(0, set("alertsControl", 0, {{"alertsAction", "clear_history"}}));
  EXPECT_EQ(0u, rows("historicalAlerts"));
  EXPECT_EQ(before, rows("unacknowledgedAlerts"));
}

TEST_F(Alerts, allAreAcknowledgedAtOnce)
{
  const unsigned before = rows("historicalAlerts");
  EXPECT_EQ(0, set("alertsControl", 0, {{"alertsAction", "ack_all"}}));
  EXPECT_EQ(0u, rows("unacknowledgedAlerts"));
  EXPECT_EQ(before, rows("historicalAlerts"));
  EXPECT_EQ(12, set("alertsControl", 0, {{"alertsAction", "ack_some"}}));
}

TEST_F(Alerts, eachKindCanBeDisabledAndEnabled)
{
  std::size_t count = 0;
  const zelsim::AlertKindInfo *kinds = zelsim::alertKinds(count);
  EXPECT_EQ(42u, count);
  for (std::size_t i = 0; i < count; ++i) {
    const std::string kind = std::string(kinds[i].enable).substr(std::string("enableAlert").size());
    EXPECT_NE(0u, raise(kind.c_str())) << kind;
    ASSERT_EQ(0, set("alertLogControl", 0, {{kinds[i].enable, "disabled"}}));
    EXPECT_EQ(0u, raise(kind.c_str())) << kind;
  }
}

TEST_F(Alerts, keepTheNewestWhenThereAreTooMany)
{
  unsigned last = 0;
  for (int i = 0; i < 510; ++i)
    last = raise("DeviceReportedInfo");
  EXPECT_EQ(500u, rows("unacknowledgedAlerts"));
  EXPECT_TRUE(exists("historicalAlerts", last));
  EXPECT_TRUE(exists("historicalAlerts", last - 500));
  EXPECT_TRUE(exists("unacknowledgedAlerts", last - 499));
  EXPECT_FALSE(exists("unacknowledgedAlerts", last - 500));
}

TEST_F(Alerts, instancesGoOnCountingAfterAClearAndARestart)
{
  const unsigned before = raise("FanFault");
  ASSERT_EQ(0, set("alertsControl", 0, {{"alertsAction", "ack_all"}}));
  ASSERT_EQ(0, set("alertsControl", 0, {{"alertsAction", "clear_history"}}));
  store.kill();
  store.restart();
  EXPECT_EQ(before + 1, raise("FanFault"));
}

TEST_F(Alerts, theLevelsAreSetThroughTheSettingsOfTheSystemAsWell)
{
  EXPECT_EQ(0, setJson("systemGlobals", 0, "eventLogControl", R"({"error":"disabled","info":"disabled"})"));
  EXPECT_EQ("disabled", text("eventLogControl", 0, "error"));
  EXPECT_EQ("enabled", text("eventLogControl", 0, "warning"));
  EXPECT_EQ("disabled", text("eventLogControl", 0, "info"));
}

TEST(AlertText, isFilledInWithWhateverItIsGiven)
{
  EXPECT_EQ("User %2 logged in at receiver R.", zelsim::alertText(zelsim::AlertKind::UserLogin, "%2", "R"));
}

} // namespace
