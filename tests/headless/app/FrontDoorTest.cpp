// SPDX-License-Identifier: MIT
#include "LogCapture.h"
#include "NevoSite.h"
#include "SwitchScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace std::chrono_literals;
using testing::Eq;
using testing::HasSubstr;

namespace
{

constexpr int kEnter = 13;
constexpr int kEscape = 27;

const char kFailure[] = "Authentication failure Incorrect username, password, or privileges. Username and "
                        "password are case sensitive. Ok";
const char kLockout[] = "Authentication lockout There have been 5 successive login failures. You are locked "
                        "out for 5 minutes. Ok";

class FrontDoor : public testing::Test
{
protected:
  FrontDoor() : visitor_(site_) {}

  void showBanner(const std::string &text)
  {
    store_.setGlobal("nevoBannerEnable", "enabled");
    store_.setGlobal("nevoBannerText", text);
  }
  // Failures are counted for the whole process: a success forgets those of other tests.
  void openWithoutFormerFailures()
  {
    Visitor clerk(site_);
    clerk.open();
    clerk.logIn();
    ASSERT_TRUE(clerk.shows("Dashboard"));
    clerk.close();
    store_.refuseLogins();
    store_.forgetRequests();
    visitor_.open();
  }
  void fail(int times)
  {
    for (int i = 0; i < times; ++i) {
      visitor_.logIn("operator", "wrong");
      ASSERT_THAT(visitor_.dialogText(), Eq(kFailure)) << i;
      ASSERT_TRUE(visitor_.click(visitor_.button("Ok")));
    }
  }
  std::string value(const std::string &label) const { return visitor_.field(label)->get(".value"); }
  bool hasFocus(const std::string &label) const
  {
    return visitor_.page().find(visitor_.page().focus) == visitor_.field(label);
  }

  SwitchScript store_;
  NevoSite site_;
  Visitor visitor_;
};

using Login = FrontDoor;
using Banner = FrontDoor;
using Lockout = FrontDoor;

} // namespace

// ---- The banner

TEST_F(Banner, standsBeforeTheLogin)
{
  showBanner("Authorised use only");
  visitor_.open();
  EXPECT_EQ(visitor_.dialogText(), "Corvane KVM Authorised use only Proceed to log in");
  EXPECT_FALSE(visitor_.atLogin());
  EXPECT_EQ(visitor_.page().find(visitor_.page().focus), visitor_.button("Proceed to log in"));
  ASSERT_TRUE(visitor_.click(visitor_.button("Proceed to log in")));
  EXPECT_TRUE(visitor_.atLogin());
  EXPECT_FALSE(visitor_.shows("Authorised use only"));
}

TEST_F(Banner, isPassedWithEnterToo)
{
  showBanner("Authorised use only");
  visitor_.open();
  ASSERT_TRUE(visitor_.key(visitor_.button("Proceed to log in"), kEnter));
  EXPECT_TRUE(visitor_.atLogin());
}

TEST_F(Banner, showsMarkupAsText)
{
  const std::string hostile = "<b>Keep</b> <script>alert(1)</script> &amp; out";
  showBanner(hostile);
  visitor_.open();
  ASSERT_TRUE(visitor_.byText(hostile));
  EXPECT_FALSE(visitor_.byText(hostile)->has("<"));
  EXPECT_TRUE(visitor_.byText(hostile)->hasClass("nevo-banner-text"));
}

TEST_F(Banner, isSkippedWhereItIsDisabledOrEmpty)
{
  showBanner("Off");
  store_.setGlobal("nevoBannerEnable", "disabled");
  visitor_.open();
  EXPECT_TRUE(visitor_.atLogin());
  showBanner("");
  Visitor second(site_);
  second.open();
  EXPECT_TRUE(second.atLogin());
}

TEST_F(Banner, mayWaitForEver)
{
  showBanner("Authorised use only");
  visitor_.open();
  visitor_.advance(600s);
  EXPECT_FALSE(visitor_.hasQuit());
  EXPECT_TRUE(visitor_.shows("Authorised use only"));
}

// ---- The login

TEST_F(Login, asksForNameAndPasswordAndTellsTheVersion)
{
  visitor_.open();
  EXPECT_EQ(visitor_.page().title, "Nortexa Corvane KVM");
  ASSERT_TRUE(visitor_.atLogin());
  EXPECT_TRUE(hasFocus("Username"));
  EXPECT_EQ(visitor_.field("Password")->get("type"), "password");
  EXPECT_EQ(visitor_.field("Username")->get("maxlength"), "60");
  EXPECT_EQ(visitor_.field("Username")->get("autocomplete"), "off");
  EXPECT_TRUE(visitor_.shows("Version 4.2.1"));
  EXPECT_TRUE(visitor_.byAttribute("src", "resources/themes/halden/login-banner.png"));
}

TEST_F(Login, leadsToThePageWithTheNamesOfUserAndSwitch)
{
  visitor_.open();
  LogCapture log;
  visitor_.logIn("operator", "operator-1");
  EXPECT_FALSE(visitor_.dialog());
  EXPECT_TRUE(visitor_.shows("Dashboard"));
  EXPECT_TRUE(visitor_.shows("Corvane KVM, user: operator, logged in to North"));
  EXPECT_THAT(log.text(), HasSubstr("3 createUi: operator logged in to NEVO.\n"));
}

TEST_F(Login, sendsWhatWasTypedAsItIs)
{
  visitor_.open();
  visitor_.logIn("j\xc3\xb6rg\"", " <p&w> ");
  EXPECT_THAT(store_.requests("CREATE").back(), HasSubstr("\"username\":\"j\xc3\xb6rg\\\"\""));
  EXPECT_THAT(store_.requests("CREATE").back(), HasSubstr(R"("password":" <p&w> ")"));
}

TEST_F(Login, isSentByEnterInEitherFieldAndOnTheButton)
{
  const char *const places[] = {"Username", "Password", "Log In"};
  for (const char *place : places) {
    Visitor visitor(site_);
    visitor.open();
    visitor.type(visitor.field("Username"), "operator");
    visitor.type(visitor.field("Password"), "operator-1");
    store_.forgetRequests();
    ASSERT_TRUE(visitor.key(place == places[2] ? visitor.button(place) : visitor.field(place), kEnter))
        << place;
    EXPECT_TRUE(visitor.shows("Dashboard")) << place;
    EXPECT_EQ(store_.loginCount(), 1U) << place;
  }
}

TEST_F(Login, tellsAFailureWithoutItsReasonAndComesBackEmpty)
{
  openWithoutFormerFailures();
  visitor_.logIn("operator", "wrong");
  EXPECT_EQ(visitor_.dialogText(), kFailure);
  EXPECT_EQ(visitor_.page().find(visitor_.page().focus), visitor_.button("Ok"));
  visitor_.click(visitor_.button("Ok"));
  EXPECT_FALSE(visitor_.shows("Authentication failure"));
  ASSERT_TRUE(visitor_.atLogin());
  EXPECT_EQ(value("Username"), "");
  EXPECT_EQ(value("Password"), "");
  EXPECT_TRUE(hasFocus("Username"));
}

TEST_F(Login, comesBackByEscapeAndEnterToo)
{
  openWithoutFormerFailures();
  visitor_.logIn("operator", "wrong");
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_EQ(visitor_.dialogText().find("Authentication failure"), std::string::npos);
  EXPECT_TRUE(hasFocus("Username"));
  visitor_.logIn("operator", "wrong");
  visitor_.key(visitor_.button("Ok"), kEnter);
  EXPECT_EQ(visitor_.dialogText().find("Authentication failure"), std::string::npos);
  EXPECT_TRUE(hasFocus("Username"));
}

TEST_F(Login, failsWhereTheAccountCannotBeRead)
{
  openWithoutFormerFailures();
  store_.acceptLogins();
  store_.setRecords("user", "[]");
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kFailure);
}

TEST_F(Login, failsAndCountsWhereTheStoreIsDown)
{
  openWithoutFormerFailures();
  store_.hangUp("CREATE", "adminSession");
  fail(5);
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kLockout);
}

TEST_F(Login, tellsWhomAForgottenPasswordIsAMatterFor)
{
  visitor_.open();
  ASSERT_TRUE(visitor_.click("Forgot my password"));
  EXPECT_EQ(
      visitor_.dialogText(),
      "Forgot Password Contact Technical Support for help resetting the administrator password. To perform "
      "the reset, you will need physical access to the serial port on this Switch. Ok");
  visitor_.click(visitor_.button("Ok"));
  EXPECT_FALSE(visitor_.shows("Forgot Password"));
  EXPECT_TRUE(visitor_.atLogin());
  visitor_.click("Forgot my password");
  visitor_.event(visitor_.dialog(), "dialog:escape");
  EXPECT_FALSE(visitor_.shows("Forgot Password"));
  EXPECT_TRUE(visitor_.atLogin());
  EXPECT_EQ(store_.loginCount(), 0U);
}

// ---- The lockout

TEST_F(Lockout, meetsTheSixthAttemptEvenWithTheRightPasswordAndWithoutAskingTheStore)
{
  openWithoutFormerFailures();
  fail(5);
  EXPECT_EQ(store_.loginCount(), 5U);
  store_.acceptLogins();
  store_.forgetRequests();
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kLockout);
  EXPECT_EQ(store_.requests().size(), 0U);
  visitor_.click(visitor_.button("Ok"));
  EXPECT_TRUE(visitor_.atLogin());
}

TEST_F(Lockout, lastsThreeHundredSeconds)
{
  openWithoutFormerFailures();
  fail(5);
  store_.acceptLogins();
  store_.forgetRequests();
  visitor_.advance(150s);
  visitor_.key(visitor_.field("Username"), 'A');
  visitor_.advance(149s);
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kLockout);
  visitor_.click(visitor_.button("Ok"));
  visitor_.advance(1s);
  visitor_.logIn();
  EXPECT_TRUE(visitor_.shows("Dashboard"));
  EXPECT_EQ(store_.loginCount(), 1U);
}

TEST_F(Lockout, needsFiveFailuresAgainAfterItsMessageWasSeen)
{
  openWithoutFormerFailures();
  fail(5);
  visitor_.logIn();
  visitor_.click(visitor_.button("Ok"));
  site_.jump(300s);
  store_.forgetRequests();
  fail(5);
  EXPECT_EQ(store_.loginCount(), 5U);
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kLockout);
}

TEST_F(Lockout, comesBackWithOneFailureWhereNobodySawItsMessage)
{
  openWithoutFormerFailures();
  fail(5);
  site_.jump(300s);
  fail(1);
  visitor_.logIn();
  EXPECT_EQ(visitor_.dialogText(), kLockout);
}

TEST_F(Lockout, holdsForEveryBrowserAndEveryUser)
{
  openWithoutFormerFailures();
  fail(5);
  store_.acceptLogins();
  Visitor other(site_);
  other.open();
  other.logIn("anna", "anna-1");
  EXPECT_EQ(other.dialogText(), kLockout);
}

TEST_F(Lockout, isForgottenWithASuccess)
{
  openWithoutFormerFailures();
  fail(4);
  store_.acceptLogins();
  visitor_.logIn();
  ASSERT_TRUE(visitor_.shows("Dashboard"));
  store_.refuseLogins();
  Visitor next(site_);
  next.open();
  for (int i = 0; i < 4; ++i)
    next.failToLogIn();
  next.logIn();
  EXPECT_EQ(next.dialogText(), kFailure);
}

TEST_F(Lockout, countsOneFailureForOnePressOfEnter)
{
  openWithoutFormerFailures();
  for (int i = 0; i < 5; ++i) {
    visitor_.type(visitor_.field("Username"), "operator");
    visitor_.type(visitor_.field("Password"), "wrong");
    visitor_.key(visitor_.button("Log In"), kEnter);
    ASSERT_THAT(visitor_.dialogText(), Eq(kFailure)) << i;
    visitor_.key(visitor_.button("Ok"), kEnter);
  }
  EXPECT_EQ(store_.loginCount(), 5U);
}

// ---- The check that sends a page in the clear to the secure port

TEST_F(Login, checksForAPageInTheClearTwiceAtMostHoweverOftenItIsComeBackTo)
{
  visitor_.head.scheme = "http";
  visitor_.open();
  for (int i = 0; i < 20; ++i) {
    visitor_.click(visitor_.link("Forgot my password"));
    visitor_.click(visitor_.button("Ok"));
  }
  visitor_.resetCounters();
  visitor_.advance(2s);
  EXPECT_LE(visitor_.operationsReceived(), 2U);
  EXPECT_GE(visitor_.operationsReceived(), 1U);
}

TEST_F(Login, goesOnWithItsFirstCheckForAPageInTheClearWhenSomebodyIsIn)
{
  visitor_.head.scheme = "http";
  openWithoutFormerFailures();
  visitor_.failToLogIn();
  store_.acceptLogins();
  visitor_.logIn();
  ASSERT_TRUE(visitor_.shows("Dashboard"));
  visitor_.page().redirected.clear();
  visitor_.advance(2s);
  EXPECT_THAT(visitor_.location(), HasSubstr("https://"));
}

// ---- Three minutes at the login

TEST_F(Login, startsThePageOverAfterThreeMinutesWithoutASign)
{
  visitor_.open();
  visitor_.advance(179999ms);
  EXPECT_FALSE(visitor_.hasQuit());
  visitor_.advance(1ms);
  EXPECT_TRUE(visitor_.hasQuit());
  EXPECT_EQ(visitor_.location(), "/");
}

TEST_F(Login, countsTheThreeMinutesFromTheLastKeyOrClickInAField)
{
  for (const char *label : {"Username", "Password"}) {
    Visitor visitor(site_);
    visitor.open();
    visitor.advance(179s);
    ASSERT_TRUE(visitor.key(visitor.field(label), 'A'));
    visitor.advance(179s);
    ASSERT_FALSE(visitor.hasQuit()) << label;
    ASSERT_TRUE(visitor.click(visitor.field(label)));
    visitor.advance(179s);
    EXPECT_FALSE(visitor.hasQuit()) << label;
    visitor.advance(1s);
    EXPECT_TRUE(visitor.hasQuit()) << label;
  }
}

TEST_F(Login, endsTheThreeMinutesOnceSomebodyIsIn)
{
  visitor_.open();
  visitor_.logIn();
  visitor_.advance(400s);
  EXPECT_FALSE(visitor_.hasQuit());
  EXPECT_TRUE(visitor_.shows("Dashboard"));
}

// ---- The first password

class SetPassword : public FrontDoor
{
protected:
  SetPassword()
  {
    store_.acceptLogins(false);
    visitor_.open();
    visitor_.logIn();
    store_.forgetRequests();
  }
  void choose(const std::string &password, const std::string &confirmation)
  {
    visitor_.type(visitor_.field("Password"), password);
    visitor_.type(visitor_.field("Confirm Password"), confirmation);
    visitor_.focusOn(visitor_.field("Password"));
    visitor_.focusOn(visitor_.field("Confirm Password"));
    visitor_.advance(500ms);
  }
};

TEST_F(SetPassword, isAskedForWhereItWasNeverSet)
{
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("Set Password"));
  EXPECT_THAT(visitor_.dialogText(), HasSubstr("This account has no password yet."));
  EXPECT_TRUE(visitor_.byAttribute("src", "resources/themes/halden/settings.png"));
  EXPECT_EQ(visitor_.field("Password")->get("type"), "password");
  EXPECT_EQ(visitor_.field("Password")->get("maxlength"), "20");
  EXPECT_FALSE(visitor_.canPress("Set Password"));
  EXPECT_FALSE(visitor_.shows("Dashboard"));
}

TEST_F(SetPassword, canBeSetOnlyOnceBothFieldsHoldTheSameGoodPassword)
{
  const struct {
    const char *password;
    const char *confirmation;
    bool good;
  } cases[] = {{"n3w", "", false},     {"n3w", "n3", false},
               {"n3w", "n3w", true},   {"n3w", "N3w", false},
               {"", "", false},        {"n 3w", "n 3w", false},
               {"~!#", "~!#", true},   {"caf\xc3\xa9", "caf\xc3\xa9", false},
               {"a\tb", "a\tb", false}};
  for (const auto &attempt : cases) {
    choose(attempt.password, attempt.confirmation);
    EXPECT_EQ(visitor_.canPress("Set Password"), attempt.good)
        << attempt.password << '/' << attempt.confirmation;
  }
}

TEST_F(SetPassword, leadsToThePageOnceItIsSet)
{
  choose("n3w-Secret", "n3w-Secret");
  ASSERT_TRUE(visitor_.click(visitor_.button("Set Password")));
  EXPECT_TRUE(visitor_.shows("Dashboard"));
  EXPECT_THAT(
      store_.requests("SET"),
      testing::ElementsAre(R"({"method":"SET","params":{"name":"operator","password":"n3w-Secret",)"
                           R"("passwordIsInitialized":"is_true","role":"admin"},"resource":"user"})"));
}

TEST_F(SetPassword, isSentByEnterOnlyWhereItIsGood)
{
  choose("n3w-Secret", "other");
  visitor_.key(visitor_.field("Confirm Password"), kEnter);
  EXPECT_EQ(store_.requests("SET").size(), 0U);
  EXPECT_FALSE(visitor_.shows("Dashboard"));
  choose("n3w-Secret", "n3w-Secret");
  visitor_.key(visitor_.field("Confirm Password"), kEnter);
  EXPECT_EQ(store_.requests("SET").size(), 1U);
  EXPECT_TRUE(visitor_.shows("Dashboard"));
}

TEST_F(SetPassword, leadsToThePageAlsoWhereTheStoreRefusesIt)
{
  store_.fail("SET", "user", R"([{"errno": 13}])");
  choose("x", "x");
  visitor_.click(visitor_.button("Set Password"));
  EXPECT_TRUE(visitor_.shows("Dashboard"));
}

TEST_F(SetPassword, doesNotSendAPersonBackAfterThreeMinutes)
{
  visitor_.advance(400s);
  EXPECT_FALSE(visitor_.hasQuit());
  EXPECT_TRUE(visitor_.shows("Confirm Password"));
}
