// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "NevoApplication.h"
#include "NevoSite.h"
#include "SwitchScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

// A session of an administrator.
class LoggedIn : public testing::Test
{
protected:
  LoggedIn() : visitor_(site_) {}

  void logIn()
  {
    visitor_.open();
    visitor_.logIn();
    store_.forgetRequests();
  }
  bool loggedOut()
  {
    return visitor_.hasQuit() && visitor_.location() == "/" && store_.requests("DELETE").size() == 1U;
  }

  SwitchScript store_;
  NevoSite site_;
  Visitor visitor_;
};

using Inactivity = LoggedIn;
using ModeChange = LoggedIn;
using Interface = LoggedIn;
using PlainHttp = LoggedIn;
using Header = LoggedIn;
using SessionEnd = LoggedIn;

} // namespace

// ---- Inactivity

TEST_F(Inactivity, logsOutOnceTheStoredMinutesAreOver)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  logIn();
  LogCapture log;
  visitor_.advance(60s);
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(5s);
  EXPECT_TRUE(loggedOut());
  EXPECT_THAT(log.text(), HasSubstr("3 notify: Web user logged out due to inactivity.\n"));
  EXPECT_THAT(log.text(), HasSubstr("3 Security_logoutNevoUser: operator logged out of NEVO.\n"));
}

TEST_F(Inactivity, neverLogsOutWhereTheLimitIsZero)
{
  store_.setGlobal("nevoInactivityTimeout", 0);
  logIn();
  visitor_.advance(30min);
  site_.jump(std::chrono::hours(24 * 365));
  visitor_.advance(10s);
  EXPECT_FALSE(visitor_.hasQuit());
}

TEST_F(Inactivity, countsFromThePersonsLastAction)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  logIn();
  for (int i = 0; i < 4; ++i) {
    visitor_.advance(55s);
    ASSERT_FALSE(visitor_.hasQuit()) << i;
    visitor_.click("Dashboard");
  }
  visitor_.advance(65s);
  EXPECT_TRUE(loggedOut());
}

TEST_F(Inactivity, isEndedByAPersonsActionHoweverLateItComes)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  logIn();
  site_.jump(3600s);
  visitor_.click("Dashboard");
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(55s);
  EXPECT_FALSE(visitor_.hasQuit());
}

TEST_F(Inactivity, takesANewLimitAtOnce)
{
  logIn();
  site_.application().updateNevoInactivityTimeout(1);
  visitor_.advance(65s);
  EXPECT_TRUE(loggedOut());
}

TEST_F(Inactivity, keepsItsLimitWhereTheStoreDoesNotTellANewOne)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  visitor_.open();
  store_.fail("GET", "systemGlobals", R"([{"errno": 1}])");
  visitor_.logIn();
  visitor_.advance(60s);
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(5s);
  EXPECT_TRUE(visitor_.hasQuit());
}

TEST_F(Inactivity, doesNotConcernAPageThatNobodyIsLoggedInAt)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  store_.setGlobal("nevoBannerEnable", "enabled");
  store_.setGlobal("nevoBannerText", "Keep out");
  visitor_.open();
  visitor_.advance(600s);
  EXPECT_FALSE(visitor_.hasQuit());
}

// ---- A change of who runs the switch

TEST_F(ModeChange, logsOutWhereTheSwitchComesUnderAManager)
{
  logIn();
  store_.setGlobal("managedSetting", "verified");
  visitor_.advance(9999ms);
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(1ms);
  EXPECT_TRUE(loggedOut());
}

TEST_F(ModeChange, logsOutWhereTheSwitchLeavesItsManager)
{
  store_.setGlobal("managedSetting", "verified");
  logIn();
  store_.setGlobal("managedSetting", "non_managed");
  visitor_.advance(10s);
  EXPECT_TRUE(loggedOut());
}

TEST_F(ModeChange, isNoneOnTheWayBetweenTheTwo)
{
  logIn();
  for (const char *word : {"managed", "unverified", "", "non_managed"}) {
    store_.setGlobal("managedSetting", word);
    visitor_.advance(20s);
    EXPECT_FALSE(visitor_.hasQuit()) << word;
  }
}

TEST_F(ModeChange, isMeasuredByWhatWasWhenThePageWasBuilt)
{
  logIn();
  store_.setGlobal("managedSetting", "pending");
  visitor_.advance(20s);
  store_.setGlobal("managedSetting", "verified");
  visitor_.advance(10s);
  EXPECT_TRUE(loggedOut());
}

TEST_F(ModeChange, isNoneWhereTheStoreDoesNotAnswer)
{
  logIn();
  store_.fail("GET", "systemGlobals", R"([{"errno": 1}])");
  visitor_.advance(30s);
  EXPECT_FALSE(visitor_.hasQuit());
}

TEST_F(ModeChange, isNotWatchedWhereTheWholeInterfaceIsOfferedAllTheSame)
{
  store_.setGlobal("fullNevoWhenManaged", "enabled");
  logIn();
  store_.setGlobal("managedSetting", "verified");
  store_.forgetRequests();
  visitor_.advance(60s);
  EXPECT_FALSE(visitor_.hasQuit());
  EXPECT_EQ(store_.readCount("systemGlobals"), 0U);
}

// ---- Which page a switch shows

TEST_F(Interface, isChosenByTheSwitchsRole)
{
  const struct {
    const char *cascadeRole;
    const char *managed;
    const char *full;
    const char *tab;
  } table[] = {{"controller", "non_managed", "disabled", "Dashboard"},
               {"controller", "non_managed", "enabled", "Dashboard"},
               {"controller", "verified", "enabled", "Dashboard"},
               {"controller", "verified", "disabled", "Managed Master Settings"},
               {"none", "verified", "disabled", "Managed Slave Settings"},
               {"backup", "verified", "enabled", "Managed Slave Settings"},
               {"none", "non_managed", "disabled", "Slave Switch Settings"},
               {"backup", "non_managed", "enabled", "Slave Switch Settings"}};
  for (const auto &row : table) {
    store_.setRole("master", row.cascadeRole);
    store_.setGlobal("managedSetting", row.managed);
    store_.setGlobal("fullNevoWhenManaged", row.full);
    Visitor visitor(site_);
    visitor.open();
    visitor.logIn();
    for (const char *tab :
         {"Dashboard", "Managed Master Settings", "Managed Slave Settings", "Slave Switch Settings"})
      EXPECT_EQ(visitor.shows(tab), std::string(tab) == row.tab)
          << row.cascadeRole << ' ' << row.managed << ' ' << row.full << ": " << tab;
    EXPECT_TRUE(visitor.shows("Version 4.2.1"));
    EXPECT_TRUE(visitor.shows("Log out"));
  }
}

TEST_F(Interface, saysPlainlyWhatAManagedSwitchAndASlaveDoNotOffer)
{
  store_.setGlobal("managedSetting", "verified");
  logIn();
  EXPECT_TRUE(
      visitor_.shows("This switch is under an external manager. Use the manager to change its settings: "
                     "this page does not offer them."));
  store_.setRole("slave", "none");
  store_.setGlobal("managedSetting", "non_managed");
  Visitor slave(site_);
  slave.open();
  slave.logIn();
  EXPECT_TRUE(
      slave.shows("This switch is a slave in a cascade. Log in to the master switch to run the system: "
                  "this page does not offer the slave's own settings."));
}

TEST_F(Interface, ofASlaveReadsNoLists)
{
  store_.setRole("slave", "none");
  logIn();
  visitor_.advance(20s);
  EXPECT_EQ(store_.readCount("userSession"), 0U);
  EXPECT_EQ(store_.readCount("unacknowledgedAlerts"), 0U);
}

TEST_F(Interface, countsAFailedReadOfTheFullInterfaceAsNo)
{
  store_.setGlobal("managedSetting", "verified");
  store_.setGlobal("fullNevoWhenManaged", "perhaps");
  logIn();
  EXPECT_TRUE(visitor_.shows("Managed Master Settings"));
}

// ---- Plain HTTP

TEST_F(PlainHttp, isLeftAtOnceForTheSameHostAndPort)
{
  visitor_.head.scheme = "http";
  visitor_.head.host = "switch.example:8080";
  visitor_.open();
  EXPECT_THAT(visitor_.location(), StartsWith("https://switch.example:8080/"));
}

TEST_F(PlainHttp, isLeftAgainEveryTwoSecondsWhilePeopleStay)
{
  visitor_.head.scheme = "http";
  visitor_.open();
  for (int i = 0; i < 3; ++i) {
    visitor_.page().redirected.clear();
    visitor_.advance(1999ms);
    EXPECT_EQ(visitor_.location(), "") << i;
    visitor_.advance(1ms);
    EXPECT_THAT(visitor_.location(), StartsWith("https://localhost/")) << i;
  }
}

TEST_F(PlainHttp, isLeftEveryFiveSecondsBySomebodyWhoIsLoggedIn)
{
  visitor_.head.scheme = "http";
  logIn();
  visitor_.page().redirected.clear();
  visitor_.advance(4999ms);
  EXPECT_EQ(visitor_.location(), "");
  visitor_.advance(1ms);
  EXPECT_THAT(visitor_.location(), StartsWith("https://localhost/"));
}

TEST_F(PlainHttp, isNoMatterOfASecurePage)
{
  visitor_.open();
  visitor_.advance(20s);
  EXPECT_EQ(visitor_.location(), "");
}

// ---- The header

TEST_F(Header, showsHostileNamesAsText)
{
  store_.setRecords(
      "swx", R"([{"index": 1, "name": "<i>North</i>", "mode": "master", "cascadeRole": "controller"}])");
  store_.setRecords("user",
                    R"([{"index": 2, "name": "<script>x</script>", "passwordIsInitialized": "is_true"}])");
  logIn();
  const std::string line = "Corvane KVM, user: <script>x</script>, logged in to <i>North</i>";
  ASSERT_TRUE(visitor_.byText(line));
  EXPECT_FALSE(visitor_.byText(line)->has("<"));
}

TEST_F(Header, leavesTheNameOfASwitchOutThatHasNone)
{
  store_.setRecords("swx", R"([{"index": 1, "name": "", "mode": "master", "cascadeRole": "controller"}])");
  logIn();
  EXPECT_TRUE(visitor_.shows("Corvane KVM, user: operator"));
}

TEST_F(Header, linksToTheVendorAndToItsHelp)
{
  logIn();
  Visitor::Node *home = visitor_.byAttribute("href", "https://www.example.com/");
  ASSERT_TRUE(home);
  EXPECT_EQ(home->get("target"), "_blank");
  EXPECT_EQ(home->get("title"), "Company web site");
  Visitor::Node *help = visitor_.link("Help");
  ASSERT_TRUE(help);
  EXPECT_EQ(help->get("href"), "https://help.example.com/corvane-kvm/");
  EXPECT_EQ(help->get("target"), "_blank");
}

TEST_F(Header, linksToTheHelpThatTheSystemNames)
{
  store_.setGlobal("nevoCustomHelpLink", "https://intranet.example/kvm?a=1&b=2");
  logIn();
  EXPECT_EQ(visitor_.link("Help")->get("href"), "https://intranet.example/kvm?a=1&b=2");
}

TEST_F(Header, runsNothingThatAHelpLinkHolds)
{
  store_.setGlobal("nevoCustomHelpLink", "javascript:alert(1)");
  logIn();
  ASSERT_TRUE(visitor_.link("Help"));
  EXPECT_EQ(visitor_.link("Help")->get("href"), "");
}

TEST_F(Header, logsOut)
{
  logIn();
  LogCapture log;
  ASSERT_TRUE(visitor_.click("Log out"));
  EXPECT_TRUE(loggedOut());
  EXPECT_THAT(log.text(), HasSubstr("operator logged out of NEVO."));
}

// ---- The end of a session

TEST_F(SessionEnd, byExpiryLeavesNoTraceOfALogOut)
{
  store_.setGlobal("nevoInactivityTimeout", 1);
  logIn();
  LogCapture log;
  visitor_.disconnect();
  site_.scheduler.advance(3600s);
  site_.manager->expireSessions();
  site_.scheduler.run();
  EXPECT_EQ(site_.manager->sessionCount(), 0U);
  EXPECT_EQ(store_.requests("DELETE").size(), 0U);
  EXPECT_THAT(log.text(), Not(HasSubstr("logged out")));
  EXPECT_THAT(log.text(), HasSubstr("4 NevoApplication: In destructor. sAppInstanceCount = "));
}

TEST_F(SessionEnd, byClosingThePageLeavesNoTraceOfALogOut)
{
  logIn();
  LogCapture log;
  visitor_.close();
  site_.scheduler.advance(60s);
  EXPECT_EQ(site_.manager->sessionCount(), 0U);
  EXPECT_THAT(log.text(), Not(HasSubstr("logged out")));
}

TEST_F(SessionEnd, isCountedInTheLog)
{
  LogCapture log;
  {
    Visitor first(site_);
    Visitor second(site_);
    first.open();
    second.open();
  }
  site_.manager->killAll();
  site_.scheduler.run();
  const std::string text = log.text();
  for (const char *line : {"In constructor. sAppInstanceCount = 1.", "In constructor. sAppInstanceCount = 2.",
                           "In destructor. sAppInstanceCount = 1.", "In destructor. sAppInstanceCount = 0."})
    EXPECT_THAT(text, HasSubstr(line));
}
