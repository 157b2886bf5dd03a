// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "NevoSite.h"
#include "SwitchScript.h"
#include "TestStore.h"

#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::Eq;
using testing::ExitedWithCode;
using testing::HasSubstr;

namespace
{

const char kRetrying[] =
    "Attempting to establish a connection with the internal database server. Please wait.";
const char kFailed[] = "Error communicating with the internal database server.";

// A visitor while there is no store.
class WithoutStore : public testing::Test
{
protected:
  WithoutStore() : visitor_(site_)
  {
    setenv("NEVO_STORE_SOCKET", "/nonexistent/store.sock", 1);
    visitor_.open();
  }

  void waitOutTheRetries() { visitor_.advance(5s); }

  NevoSite site_;
  Visitor visitor_;
};

} // namespace

TEST_F(WithoutStore, aBoxTellsOfFiveRetriesOfASecondEachAndThenOfTheFailure)
{
  EXPECT_THAT(visitor_.dialogText(), Eq(std::string("Retrying ") + kRetrying));
  for (int pass = 1; pass <= 4; ++pass) {
    visitor_.advance(999ms);
    EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying)) << pass;
    visitor_.advance(1ms);
    EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying)) << pass;
  }
  visitor_.advance(999ms);
  EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying));
  visitor_.advance(1ms);
  EXPECT_THAT(visitor_.dialogText(), Eq(std::string("Error ") + kFailed + " Reset Retry"));
}

TEST_F(WithoutStore, theFailuresBoxHasTheFocusOnRetry)
{
  waitOutTheRetries();
  EXPECT_EQ(visitor_.page().find(visitor_.page().focus), visitor_.button("Retry"));
}

TEST_F(WithoutStore, theRetriesEndAsSoonAsTheStoreIsThere)
{
  visitor_.advance(1500ms);
  SwitchScript store;
  visitor_.advance(500ms);
  EXPECT_TRUE(visitor_.atLogin());
  EXPECT_EQ(visitor_.dialogText().find(kRetrying), std::string::npos);
}

TEST_F(WithoutStore, retryWhileTheStoreIsStillAwayRetriesFiveTimesAgain)
{
  waitOutTheRetries();
  for (int round = 1; round <= 2; ++round) {
    ASSERT_TRUE(visitor_.click(visitor_.button("Retry")));
    EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying)) << round;
    EXPECT_FALSE(visitor_.shows(kFailed)) << round;
    visitor_.advance(4999ms);
    EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying)) << round;
    visitor_.advance(1ms);
    EXPECT_THAT(visitor_.dialogText(), HasSubstr(kFailed)) << round;
  }
}

TEST_F(WithoutStore, escapeRetriesRatherThanLeavingAnEmptyPage)
{
  waitOutTheRetries();
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_THAT(visitor_.dialogText(), HasSubstr(kRetrying));
  SwitchScript store;
  visitor_.advance(1s);
  EXPECT_TRUE(visitor_.atLogin());
}

TEST_F(WithoutStore, retryAfterTheStoreCameUpLeadsToTheLogin)
{
  waitOutTheRetries();
  SwitchScript store;
  ASSERT_TRUE(visitor_.click(visitor_.button("Retry")));
  EXPECT_TRUE(visitor_.atLogin());
  EXPECT_FALSE(visitor_.shows(kFailed));
  visitor_.logIn();
  EXPECT_TRUE(visitor_.shows("Dashboard"));
}

TEST_F(WithoutStore, aPageThatIsClosedDuringTheRetriesEndsItsSession)
{
  visitor_.advance(1500ms);
  LogCapture log;
  visitor_.close();
  site_.scheduler.advance(60min);
  site_.manager->expireSessions();
  site_.scheduler.run();
  EXPECT_EQ(site_.manager->sessionCount(), 0U);
  EXPECT_THAT(log.text(), HasSubstr("In destructor. sAppInstanceCount = 0."));
}

TEST(ConnectionDeathTest, resetTellsAPersonAndEndsTheProcessWithOne)
{
  GTEST_FLAG_SET(death_test_style, "threadsafe");
  const auto reset = [] {
    NevoSite site;
    Visitor visitor(site);
    visitor.open();
    visitor.advance(5s);
    visitor.click(visitor.button("Reset"));
    std::fprintf(stderr, "%s", visitor.dialogText().c_str());
    visitor.advance(1s);
    std::fprintf(stderr, "still alive");
  };
  EXPECT_EXIT(reset(), ExitedWithCode(1), "^Resetting Resetting web server. Please wait.$");
}

TEST(Connection, isBadWhereTheInactivityLimitCannotBeRead)
{
  SwitchScript store;
  store.fail("GET", "systemGlobals", R"([{"errno": 1}])");
  NevoSite site;
  Visitor visitor(site);
  visitor.open();
  EXPECT_THAT(visitor.dialogText(), HasSubstr(kFailed));
}

TEST(Connection, isNotHeldWhileAPageWaitsAtTheLoginOrTheBanner)
{
  TestStore::Options options;
  options.more = {"--max-clients", "1"};
  TestStore store(options);
  NevoSite site;
  Visitor first(site);
  Visitor second(site);
  first.open();
  EXPECT_TRUE(first.atLogin());
  ASSERT_TRUE(store.set("systemGlobals", 0, "nevoBannerEnable", "enabled"));
  ASSERT_TRUE(store.set("systemGlobals", 0, "nevoBannerText", "Keep out"));
  second.open();
  EXPECT_TRUE(second.shows("Keep out"));
  Visitor third(site);
  third.open();
  EXPECT_TRUE(third.shows("Keep out"));
}

TEST(Connection, failsWhereTheStoreHasNoRoomForAnother)
{
  TestStore::Options options;
  options.more = {"--max-clients", "1"};
  TestStore store(options);
  NevoSite site;
  Visitor first(site);
  first.open();
  first.logIn();
  ASSERT_TRUE(first.shows("Dashboard"));
  Visitor second(site);
  second.open();
  second.advance(5s);
  EXPECT_THAT(second.dialogText(), HasSubstr(kFailed));
}
