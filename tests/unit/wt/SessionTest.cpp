// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WException>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <Wt/WTimer>
#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <mutex>
#include <stdexcept>
#include <thread>

using namespace Wt;
using namespace Wt::Testing;
using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

namespace
{

/// Gathers the toolkit's log lines while it lives.
class LogLines
{
public:
  LogLines()
  {
    Engine::setLogSink([this](Engine::LogLevel level, std::string_view, std::string_view message) {
      const std::lock_guard<std::mutex> held(mutex_);
      text_ += std::string(Engine::logLevelName(level)) + ": " + std::string(message) + '\n';
    });
  }
  ~LogLines() { Engine::setLogSink(nullptr); }
  std::string text() const
  {
    const std::lock_guard<std::mutex> held(mutex_);
    return text_;
  }

private:
  mutable std::mutex mutex_;
  std::string text_;
};

/// Records its destruction, in the order of others.
struct Witness {
  Witness(std::vector<std::string> &record, std::string name) : record_(record), name_(std::move(name)) {}
  ~Witness() { record_.push_back(name_); }
  std::vector<std::string> &record_;
  std::string name_;
};

class RecordingApplication : public WApplication
{
public:
  RecordingApplication(const WEnvironment &environment, std::vector<std::string> &record)
      : WApplication(environment), record_(record)
  {
  }
  ~RecordingApplication() override
  {
    record_.push_back(instance() == this ? "destroyed" : "destroyed outside");
  }
  void initialize() override { record_.push_back("initialize"); }
  void finalize() override { record_.push_back("finalize"); }

protected:
  void notify(const WEvent &event) override
  {
    static const char *const names[] = {"other", "user", "timer", "resource"};
    record_.push_back(names[event.eventType()]);
    WApplication::notify(event);
  }

private:
  std::vector<std::string> &record_;
};

WText *counterWithButton(WApplication &app)
{
  auto *text = new WText("0", app.root());
  auto *button = new WPushButton("Count", app.root());
  button->clicked().connect(
      std::bind([text] { text->setText(std::to_string(std::stoi(text->text().toUTF8()) + 1)); }));
  return text;
}

} // namespace

TEST(Session, showsWhatTheApplicationBuiltAndAnswersClicks)
{
  TestSite site(TestSite::building([](WApplication &app) { counterWithButton(app); }));
  const auto page = site.openPage();
  ASSERT_TRUE(page->shows("0"));
  EXPECT_TRUE(page->click("Count"));
  EXPECT_TRUE(page->shows("1"));
}

TEST(Session, sendsOnlyTheTextThatChanged)
{
  TestSite site(TestSite::building([](WApplication &app) {
    for (int i = 0; i < 200; ++i)
      new WText("a line of text that stays", app.root());
    counterWithButton(app);
  }));
  const auto page = site.openPage();
  page->resetCounters();
  page->click("Count");
  EXPECT_EQ(1u, page->operationsReceived());
  EXPECT_LT(page->bytesReceived(), 60u);
}

TEST(Session, sendsNothingWhenATimerChangesNothing)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *text = new WText("same", app.root());
    auto *timer = new WTimer(&app);
    timer->setInterval(1000);
    timer->timeout().connect(std::bind([text] {
      text->setText("other");
      text->setText("same");
    }));
    timer->start();
  }));
  const auto page = site.openPage();
  page->resetCounters();
  page->advance(20s);
  EXPECT_EQ(0u, page->bytesReceived());
}

TEST(Session, rebuildsWithoutTheFormerWidgetsLeftOver)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *box = new WContainerWidget(app.root());
    auto *button = new WPushButton("Rebuild", app.root());
    const auto fill = [box] {
      box->clear();
      for (int i = 0; i < 3; ++i)
        new WText("part", box);
    };
    fill();
    button->clicked().connect(std::bind(fill));
  }));
  const auto page = site.openPage();
  const std::size_t before = page->page().size();
  page->click("Rebuild");
  EXPECT_EQ(before, page->page().size());
}

TEST(Session, tellsNotifyTheKindOfEachEvent)
{
  std::vector<std::string> record;
  {
    TestSite site([&](const WEnvironment &environment) -> WApplication * {
      auto *app = new RecordingApplication(environment, record);
      counterWithButton(*app);
      auto *timer = new WTimer(app);
      timer->setInterval(100);
      timer->setSingleShot(true);
      timer->start();
      return app;
    });
    const auto page = site.openPage();
    page->click("Count");
    page->advance(100ms);
    page->close();
  }
  EXPECT_THAT(record,
              ElementsAre("initialize", "other", "user", "timer", "other", "other", "finalize", "destroyed"));
}

TEST(Session, dropsTheEventWhoseNotifyDoesNotCallTheBase)
{
  class Deaf : public WApplication
  {
  public:
    explicit Deaf(const WEnvironment &environment) : WApplication(environment) { counterWithButton(*this); }

  protected:
    void notify(const WEvent &event) override
    {
      if (event.eventType() != UserEvent)
        WApplication::notify(event);
    }
  };
  TestSite site([](const WEnvironment &environment) -> WApplication * { return new Deaf(environment); });
  const auto page = site.openPage();
  page->click("Count");
  EXPECT_TRUE(page->shows("0"));
}

TEST(Session, waitsInsideAHandlerAndGoesOnWithTheNextEvent)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *text = new WText("idle", app.root());
    auto *ask = new WPushButton("Ask", app.root());
    auto *answer = new WPushButton("Answer", app.root());
    auto answered = std::make_shared<bool>(false);
    answer->clicked().connect(std::bind([answered] { *answered = true; }));
    ask->clicked().connect(std::bind([text, answered] {
      text->setText("waiting");
      while (!*answered)
        WApplication::instance()->waitForEvent();
      text->setText("answered");
    }));
  }));
  const auto page = site.openPage();
  page->click("Ask");
  EXPECT_TRUE(page->shows("waiting"));
  page->click("Answer");
  EXPECT_TRUE(page->shows("answered"));
}

TEST(Session, letsAnOuterWaitReturnOnlyAfterAnInnerOne)
{
  std::vector<std::string> record;
  std::map<std::string, bool> done;
  TestSite site(TestSite::building([&](WApplication &app) {
    for (const std::string name : {"outer", "inner"}) {
      auto *begin = new WPushButton("Begin " + name, app.root());
      begin->clicked().connect(std::bind([&record, &done, name] {
        while (!done[name])
          WApplication::instance()->waitForEvent();
        record.push_back(name);
      }));
      auto *end = new WPushButton("End " + name, app.root());
      end->clicked().connect(std::bind([&done, name] { done[name] = true; }));
    }
  }));
  const auto page = site.openPage();
  page->click("Begin outer");
  page->click("Begin inner");
  page->click("End outer");
  EXPECT_TRUE(record.empty());
  page->click("End inner");
  EXPECT_THAT(record, ElementsAre("inner", "outer"));
}

TEST(Session, dispatchesTheRestOfTheRequestBeforeItWaits)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *text = new WText("-", app.root());
    auto *button = new WPushButton("Both", app.root());
    button->mouseWentDown().connect(std::bind([] { WApplication::instance()->processEvents(); }));
    button->clicked().connect(std::bind([text] { text->setText("clicked"); }));
  }));
  const auto page = site.openPage();
  page->click("Both");
  EXPECT_TRUE(page->shows("clicked"));
}

TEST(Session, rendersWhatAHandlerHasDoneSoFarInProcessEvents)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *text = new WText("0%", app.root());
    auto *button = new WPushButton("Work", app.root());
    button->clicked().connect(std::bind([text] {
      text->setText("50%");
      WApplication::instance()->processEvents();
      throw std::runtime_error("the work failed");
    }));
  }));
  const LogLines log;
  const auto page = site.openPage();
  page->click("Work");
  EXPECT_TRUE(page->shows("50%"));
}

TEST(Session, unwindsWaitingHandlersWhenItIsKilled)
{
  std::vector<std::string> record;
  TestSite site(TestSite::building([&record](WApplication &app) {
    auto *button = new WPushButton("Wait", app.root());
    button->clicked().connect(std::bind([&record] {
      const Witness witness(record, "stack object");
      try {
        WApplication::instance()->waitForEvent();
      } catch (const WException &e) {
        record.push_back(e.what());
        throw;
      }
    }));
  }));
  const auto page = site.openPage();
  page->click("Wait");
  site.manager->killAll();
  site.scheduler.run();
  EXPECT_THAT(record, ElementsAre("session was killed", "stack object"));
  EXPECT_EQ(0u, site.manager->sessionCount());
}

TEST(Session, canWaitInsideTheApplicationsConstructor)
{
  std::vector<std::string> record;
  TestSite site(TestSite::building([&record](WApplication &app) {
    auto *text = new WText("constructing", app.root());
    app.processEvents();
    record.push_back("went on");
    text->setText("constructed");
  }));
  const auto page = site.openPage();
  EXPECT_THAT(record, ElementsAre("went on"));
  EXPECT_TRUE(page->shows("constructed"));
}

TEST(Session, sendsARedirectAndThrowsWhenEventsAreProcessedAfterQuit)
{
  std::vector<std::string> record;
  TestSite site(TestSite::building([&record](WApplication &app) {
    auto *button = new WPushButton("Leave", app.root());
    button->clicked().connect(std::bind([&app, &record] {
      const Witness witness(record, "unwound");
      app.redirect("/");
      app.quit();
      EXPECT_TRUE(app.isQuited());
      app.processEvents();
      record.push_back("never");
    }));
  }));
  const auto page = site.openPage();
  page->click("Leave");
  EXPECT_TRUE(page->hasQuit());
  EXPECT_EQ("/", page->location());
  EXPECT_THAT(record, ElementsAre("unwound"));
  EXPECT_EQ(0u, site.manager->sessionCount());
}

TEST(Session, finishesTheHandlerThatQuits)
{
  std::vector<std::string> record;
  TestSite site(TestSite::building([&record](WApplication &app) {
    auto *button = new WPushButton("Leave", app.root());
    button->clicked().connect(std::bind([&app, &record] {
      app.quit("Good night");
      record.push_back("after");
    }));
  }));
  const auto page = site.openPage();
  page->click("Leave");
  EXPECT_THAT(record, ElementsAre("after"));
  EXPECT_EQ("Good night", page->quitText());
}

TEST(Session, redirectsWithoutEnding)
{
  TestSite site(TestSite::building([](WApplication &app) {
    auto *button = new WPushButton("Download", app.root());
    button->clicked().connect(std::bind([&app] { app.redirect("/file"); }));
  }));
  const auto page = site.openPage();
  page->click("Download");
  EXPECT_EQ("/file", page->location());
  EXPECT_FALSE(page->hasQuit());
  EXPECT_EQ(1u, site.manager->sessionCount());
}

TEST(Session, endsWithAFatalLineWhenAnExceptionEscapesASlot)
{
  LogLines log;
  TestSite site(TestSite::building([](WApplication &app) {
    auto *button = new WPushButton("Fail", app.root());
    button->clicked().connect(std::bind([] { throw std::runtime_error("out of luck"); }));
  }));
  const auto page = site.openPage();
  const auto other = site.openPage();
  page->click("Fail");
  EXPECT_THAT(log.text(), HasSubstr("fatal"));
  EXPECT_THAT(log.text(), HasSubstr("out of luck"));
  EXPECT_TRUE(page->hasQuit());
  EXPECT_EQ(1u, site.manager->sessionCount());
  EXPECT_TRUE(other->shows("Fail"));
}

TEST(Session, endsWhenTheApplicationCannotBeMade)
{
  const LogLines log;
  TestSite site([](const WEnvironment &) -> WApplication * { throw std::runtime_error("no"); });
  const auto page = site.openPage();
  EXPECT_TRUE(page->hasQuit());
  EXPECT_EQ(0u, site.manager->sessionCount());
}

TEST(Session, resumesWithUpdatesThatWereMissed)
{
  WText *text = nullptr;
  TestSite site(TestSite::building([&text](WApplication &app) {
    text = new WText("before", app.root());
    auto *timer = new WTimer(&app);
    timer->setInterval(1000);
    timer->timeout().connect(std::bind([&text] { text->setText("ticked"); }));
    timer->start();
  }));
  const auto page = site.openPage();
  page->disconnect();
  site.scheduler.advance(10s);
  EXPECT_EQ("before", text->text().toUTF8()) << "timers rest while the browser is away";
  page->reconnect();
  EXPECT_TRUE(page->shows("ticked"));
}

TEST(Session, handlesEventsOnceThatWereUnderWayWhenTheConnectionBroke)
{
  TestSite site(TestSite::building([](WApplication &app) { counterWithButton(app); }));
  const auto page = site.openPage();
  page->disconnect();
  page->click("Count");
  page->click("Count");
  page->reconnect();
  EXPECT_TRUE(page->shows("2"));
  page->disconnect();
  page->reconnect();
  page->click("Count");
  EXPECT_TRUE(page->shows("3"));
}

TEST(Session, doesNotRepeatAMessageWhoseAnswerWasLost)
{
  TestSite site(TestSite::building([](WApplication &app) { counterWithButton(app); }));
  const auto page = site.openPage();
  Node *button = page->byText("Count");
  // Sent, but the connection breaks before the page sees the answer.
  page->clickWithoutAnswer(button);
  page->reconnect();
  EXPECT_TRUE(page->shows("1"));
  page->click(button);
  EXPECT_TRUE(page->shows("2"));
}

TEST(Session, tellsAPageToReloadWhoseSessionIsGone)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  page->disconnect();
  site.manager->killAll();
  site.scheduler.run();
  page->reconnect();
  EXPECT_TRUE(page->reloaded());
}

TEST(Session, expiresSomeTimeAfterItsBrowserHasGone)
{
  Engine::SessionConfig config;
  config.timeout = 60s;
  TestSite site(TestSite::building([](WApplication &app) { new WText("in", app.root()); }), config);
  const auto page = site.openPage();
  const auto staying = site.openPage();
  page->disconnect();
  site.scheduler.advance(59s);
  EXPECT_TRUE(site.manager->expireSessions());
  site.scheduler.run();
  EXPECT_EQ(2u, site.manager->sessionCount());
  site.scheduler.advance(2s);
  site.manager->expireSessions();
  site.scheduler.run();
  EXPECT_EQ(1u, site.manager->sessionCount());
}

TEST(Session, endsSoonWhenThePageSaysGoodbye)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  const auto page = site.openPage();
  EXPECT_EQ(1u, site.manager->sessionCount());
  page->close();
  EXPECT_EQ(0u, site.manager->sessionCount());
}

TEST(Session, runsPostedFunctionsWithinTheSession)
{
  WText *text = nullptr;
  WApplication *seen = nullptr;
  WApplication *application = nullptr;
  TestSite site(TestSite::building([&](WApplication &app) {
    application = &app;
    text = new WText("before", app.root());
  }));
  const auto page = site.openPage();
  site.manager->post(application->sessionId(), [&] {
    seen = WApplication::instance();
    text->setText("posted");
  });
  site.scheduler.run();
  page->settle();
  EXPECT_EQ(application, seen);
  EXPECT_EQ(nullptr, WApplication::instance());
  EXPECT_TRUE(page->shows("posted"));
}

TEST(Session, givesAnotherThreadTheLockAndPushesItsChanges)
{
  WText *text = nullptr;
  WApplication *application = nullptr;
  TestSite site(TestSite::building([&](WApplication &app) {
    application = &app;
    app.enableUpdates(true);
    text = new WText("before", app.root());
  }));
  const auto page = site.openPage();
  std::thread([&] {
    WApplication::UpdateLock lock(application);
    ASSERT_TRUE(static_cast<bool>(lock));
    EXPECT_EQ(application, WApplication::instance());
    text->setText("pushed");
    application->triggerUpdate();
  }).join();
  page->settle();
  EXPECT_TRUE(page->shows("pushed"));
}

TEST(Session, keepsChangesUnderALockForTheNextEventWithoutATrigger)
{
  WText *text = nullptr;
  WApplication *application = nullptr;
  TestSite site(TestSite::building([&](WApplication &app) {
    application = &app;
    app.enableUpdates(true);
    text = counterWithButton(app);
  }));
  const auto page = site.openPage();
  page->resetCounters();
  {
    WApplication::UpdateLock lock(application);
    text->setText("41");
  }
  site.scheduler.run();
  page->settle();
  EXPECT_EQ(0u, page->bytesReceived());
  page->click("Count");
  EXPECT_TRUE(page->shows("42"));
}

TEST(Session, holdsTheLockAtOnceOnTheThreadThatHandlesTheSession)
{
  bool held = false;
  TestSite site(TestSite::building([&](WApplication &app) {
    auto *button = new WPushButton("Lock", app.root());
    button->clicked().connect(std::bind([&app, &held] {
      WApplication::UpdateLock outer(&app);
      WApplication::UpdateLock inner(&app);
      held = static_cast<bool>(outer) && static_cast<bool>(inner);
    }));
  }));
  const auto page = site.openPage();
  page->click("Lock");
  EXPECT_TRUE(held);
}

TEST(Session, refusesPagesBeyondItsLimitWithAFriendlyText)
{
  const LogLines log;
  Engine::SessionConfig config;
  config.maxSessions = 2;
  TestSite site(TestSite::building([](WApplication &app) { new WText("in", app.root()); }), config);
  const auto first = site.openPage();
  const auto second = site.openPage();
  const auto third = site.openPage();
  EXPECT_THAT(third->busyText(), HasSubstr("later"));
  EXPECT_FALSE(third->connected());
  first->close();
  const auto fourth = site.openPage();
  EXPECT_EQ("", fourth->busyText());
}

TEST(Session, limitsTheRateOfNewPagesFromOneAddress)
{
  const LogLines log;
  Engine::SessionConfig config;
  config.maxNewSessionsPerAddress = 3;
  TestSite site(TestSite::building([](WApplication &) {}), config);
  for (int i = 0; i < 3; ++i)
    site.openPage()->close();
  EXPECT_NE("", site.openPage()->busyText());
  auto other = site.page();
  other->head.clientAddress = "192.0.2.7";
  other->open();
  EXPECT_EQ("", other->busyText());
  site.scheduler.advance(config.newSessionsInterval);
  EXPECT_EQ("", site.openPage()->busyText());
}

TEST(Session, opensThePagesOfAWholeOfficeBehindOneAddressAtOnceAndOnceMoreWhenTheyReload)
{
  TestSite site(TestSite::building([](WApplication &) {}));
  std::vector<std::shared_ptr<HeadlessBrowser>> pages;
  for (int round = 0; round < 2; ++round) {
    for (const auto &page : pages)
      page->close();
    pages.clear();
    for (int i = 0; i < 300; ++i) {
      pages.push_back(site.openPage());
      ASSERT_EQ("", pages.back()->busyText());
    }
  }
}

TEST(Session, tellsTheEnvironmentWhatTheBrowserSaid)
{
  std::string seen;
  TestSite site(TestSite::building([&seen](WApplication &app) {
    const WEnvironment &env = app.environment();
    const std::string *answer = env.getParameter("a b");
    seen = env.hostName() + ' ' + env.urlScheme() + ' ' + env.clientAddress() + ' ' +
           (answer ? *answer : "none") + ' ' + env.getCookie("c") + ' ' + env.userAgent() + ' ' +
           env.locale().name();
  }));
  auto page = site.page();
  page->head.host = "switch:8443";
  page->head.headers = {{"cookie", "b=1; c=two"}, {"user-agent", "tester"}};
  page->query = "a+b=%31%30&x";
  page->language = "de";
  page->open();
  EXPECT_EQ("switch:8443 https 127.0.0.1 10 two tester de", seen);
}

TEST(Session, namesItselfInItsUrl)
{
  std::string url;
  TestSite site(TestSite::building([&url](WApplication &app) { url = app.url(); }));
  const auto page = site.openPage();
  EXPECT_EQ(0u, url.find("/?wtd="));
  EXPECT_EQ(22u, url.size());
  EXPECT_EQ(std::string::npos, url.find(page->token())) << "the token is no part of any URL";
}

TEST(Session, answersFiftyQuickClicksInOrder)
{
  TestSite site(TestSite::building([](WApplication &app) { counterWithButton(app); }));
  const auto page = site.openPage();
  Node *button = page->byText("Count");
  page->disconnect();
  for (int i = 0; i < 50; ++i)
    page->click(button);
  page->reconnect();
  EXPECT_TRUE(page->shows("50"));
}
