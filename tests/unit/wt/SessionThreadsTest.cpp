// SPDX-License-Identifier: MIT
#include "http/PoolScheduler.h"
#include "session/SessionManager.h"
#include "testing/HeadlessBrowser.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WIOService>
#include <Wt/WPushButton>
#include <Wt/WText>
#include <Wt/WTimer>
#include <atomic>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

using namespace Wt;
using namespace Wt::Testing;

namespace
{

/// Sessions on a pool of threads, as in the server.
class Pool
{
public:
  explicit Pool(std::function<void(WApplication &)> build) : scheduler_(service_)
  {
    service_.setThreadCount(3);
    service_.start();
    manager = std::make_shared<Engine::SessionManager>(scheduler_, Engine::SessionConfig());
    Engine::EntryPoint entryPoint;
    entryPoint.path = "/";
    entryPoint.creator = [build](const WEnvironment &environment) -> WApplication * {
      auto *app = new WApplication(environment);
      build(*app);
      return app;
    };
    manager->addEntryPoint(std::move(entryPoint));
  }

  ~Pool()
  {
    manager->stop();
    service_.stop();
  }

  std::unique_ptr<HeadlessBrowser> openPage()
  {
    auto page = std::make_unique<HeadlessBrowser>(manager, nullptr);
    page->open();
    return page;
  }

private:
  WIOService service_;
  Engine::PoolScheduler scheduler_;

public:
  std::shared_ptr<Engine::SessionManager> manager;
};

/// Opened once.
class Gate
{
public:
  void open()
  {
    const std::lock_guard<std::mutex> held(mutex_);
    open_ = true;
    changed_.notify_all();
  }
  void wait()
  {
    std::unique_lock<std::mutex> held(mutex_);
    changed_.wait(held, [this] { return open_; });
  }

private:
  std::mutex mutex_;
  std::condition_variable changed_;
  bool open_ = false;
};

} // namespace

TEST(SessionThreads, aBlockedSessionDelaysNoOther)
{
  Gate gate;
  Pool pool([&gate](WApplication &app) {
    auto *text = new WText("ready", app.root());
    auto *block = new WPushButton("Block", app.root());
    block->clicked().connect(std::bind([&gate, text] {
      gate.wait();
      text->setText("released");
    }));
    auto *act = new WPushButton("Act", app.root());
    act->clicked().connect(std::bind([text] { text->setText("acted"); }));
  });
  const auto blocked = pool.openPage();
  const auto other = pool.openPage();
  ASSERT_TRUE(blocked->waitFor([&] { return blocked->shows("ready"); }));
  ASSERT_TRUE(other->waitFor([&] { return other->shows("ready"); }));
  blocked->click("Block");
  other->click("Act");
  EXPECT_TRUE(other->waitFor([&] { return other->shows("acted"); }));
  EXPECT_FALSE(blocked->shows("released"));
  gate.open();
  EXPECT_TRUE(blocked->waitFor([&] { return blocked->shows("released"); }));
}

TEST(SessionThreads, manyWaitingHandlersHoldNoThread)
{
  Pool pool([](WApplication &app) {
    auto *text = new WText("ready", app.root());
    auto *wait = new WPushButton("Wait", app.root());
    auto *end = new WPushButton("End", app.root());
    auto done = std::make_shared<bool>(false);
    end->clicked().connect(std::bind([done] { *done = true; }));
    wait->clicked().connect(std::bind([done, text] {
      text->setText("waiting");
      while (!*done)
        WApplication::instance()->waitForEvent();
      text->setText("done");
    }));
  });
  std::vector<std::unique_ptr<HeadlessBrowser>> pages;
  for (int i = 0; i < 20; ++i) {
    pages.push_back(pool.openPage());
    ASSERT_TRUE(pages.back()->waitFor([&] { return pages.back()->shows("ready"); }));
    pages.back()->click("Wait");
  }
  for (const auto &page : pages)
    EXPECT_TRUE(page->waitFor([&] { return page->shows("waiting"); }));
  for (const auto &page : pages)
    page->click("End");
  for (const auto &page : pages)
    EXPECT_TRUE(page->waitFor([&] { return page->shows("done"); }));
}

TEST(SessionThreads, theLockExcludesTheSessionsOwnEvents)
{
  WApplication *application = nullptr;
  WText *text = nullptr;
  int count = 0; // guarded by the session alone
  Pool pool([&](WApplication &app) {
    application = &app;
    app.enableUpdates(true);
    text = new WText("0", app.root());
    auto *timer = new WTimer(&app);
    timer->setInterval(1);
    timer->timeout().connect(std::bind([&] { text->setText(std::to_string(++count)); }));
    timer->start();
  });
  const auto page = pool.openPage();
  ASSERT_TRUE(page->waitFor([&] { return page->page().size() > 3; }));
  std::vector<std::thread> threads;
  for (int t = 0; t < 3; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < 100; ++i) {
        WApplication::UpdateLock lock(application);
        ASSERT_TRUE(static_cast<bool>(lock));
        text->setText(std::to_string(++count));
        application->triggerUpdate();
      }
    });
  }
  for (std::thread &thread : threads)
    thread.join();
  std::string shown;
  {
    WApplication::UpdateLock lock(application);
    EXPECT_GE(count, 300);
  }
  EXPECT_TRUE(page->waitFor([&] { return page->connected() && page->messagesReceived() > 100; }));
}

TEST(SessionThreads, stoppingUnwindsHandlersThatWaitOnOtherThreadsThanTheyBegan)
{
  std::atomic<int> unwound{0};
  struct OnUnwind {
    std::atomic<int> &count;
    ~OnUnwind() { ++count; }
  };
  {
    Pool pool([&unwound](WApplication &app) {
      auto *wait = new WPushButton("Wait", app.root());
      wait->clicked().connect(std::bind([&unwound] {
        const OnUnwind guard{unwound};
        for (;;)
          WApplication::instance()->waitForEvent();
      }));
    });
    std::vector<std::unique_ptr<HeadlessBrowser>> pages;
    for (int i = 0; i < 10; ++i) {
      pages.push_back(pool.openPage());
      ASSERT_TRUE(pages.back()->waitFor([&] { return pages.back()->byText("Wait") != nullptr; }));
      pages.back()->resetCounters();
      pages.back()->click("Wait");
      ASSERT_TRUE(pages.back()->waitFor([&] { return pages.back()->messagesReceived() > 0; }));
    }
    pool.manager->stop();
  }
  EXPECT_EQ(10, unwound);
}
