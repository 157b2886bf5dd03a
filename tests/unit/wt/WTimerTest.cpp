// SPDX-License-Identifier: MIT
#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WPushButton>
#include <Wt/WTimer>
#include <gtest/gtest.h>

using namespace Wt;
using namespace Wt::Testing;
using namespace std::chrono_literals;

namespace
{

/// A page with one timer that counts its ticks.
struct Clock {
  WTimer *timer = nullptr;
  int ticks = 0;
  TestSite site;
  std::unique_ptr<HeadlessBrowser> page;

  explicit Clock(std::function<void(Clock &)> setUp)
      : site(TestSite::building([this, setUp](WApplication &app) {
          timer = new WTimer(&app);
          setUp(*this);
        })),
        page(site.openPage())
  {
  }
  void count()
  {
    timer->timeout().connect(std::bind([this] { ++ticks; }));
  }
};

} // namespace

TEST(WTimer, ticksAgainAndAgain)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(100);
    c.count();
    c.timer->start();
  });
  clock.page->advance(1s);
  EXPECT_EQ(10, clock.ticks);
  EXPECT_TRUE(clock.timer->isActive());
}

TEST(WTimer, ticksOnceWhenSingleShot)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(100);
    c.timer->setSingleShot(true);
    c.count();
    c.timer->start();
  });
  clock.page->advance(1s);
  EXPECT_EQ(1, clock.ticks);
  EXPECT_FALSE(clock.timer->isActive());
}

TEST(WTimer, isStoppedAlreadyForSlotsConnectedBeforeItsFirstStartAndNotForLaterOnes)
{
  bool before = true;
  bool after = false;
  Clock clock([&](Clock &c) {
    c.timer->setSingleShot(true);
    c.timer->timeout().connect(std::bind([&] { before = c.timer->isActive(); }));
    c.timer->start();
    c.timer->timeout().connect(std::bind([&] { after = c.timer->isActive(); }));
  });
  clock.page->advance(10ms);
  EXPECT_FALSE(before);
  EXPECT_TRUE(after);
}

TEST(WTimer, takesANewIntervalAtTheNextStart)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(100);
    c.count();
    c.timer->start();
    c.timer->setInterval(500);
  });
  clock.page->advance(400ms);
  EXPECT_EQ(4, clock.ticks);
}

TEST(WTimer, beginsAnewWhenStartedWhileItRuns)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(100);
    c.count();
    c.timer->start();
  });
  clock.page->advance(90ms);
  {
    WApplication::UpdateLock lock(static_cast<WApplication *>(clock.timer->parent()));
    clock.timer->start();
  }
  clock.page->advance(90ms);
  EXPECT_EQ(0, clock.ticks);
  clock.page->advance(10ms);
  EXPECT_EQ(1, clock.ticks);
}

TEST(WTimer, mayBeStoppedTwiceAndDeletedInItsOwnSlot)
{
  Clock clock([](Clock &c) {
    c.timer->timeout().connect(std::bind([&c] {
      c.timer->stop();
      c.timer->stop();
      delete c.timer;
      c.timer = nullptr;
    }));
    c.timer->start();
  });
  clock.page->advance(10ms);
  EXPECT_EQ(nullptr, clock.timer);
  EXPECT_EQ(0u, clock.site.scheduler.alarms());
}

TEST(WTimer, goesOnTickingWhileAHandlerWaitsEvenItsOwn)
{
  int inner = 0;
  Clock clock([&inner](Clock &c) {
    c.timer->setInterval(100);
    c.timer->timeout().connect(std::bind([&c, &inner] {
      if (++c.ticks == 1)
        while (inner < 3) {
          WApplication::instance()->waitForEvent();
          ++inner;
        }
    }));
    c.timer->start();
  });
  clock.page->advance(1s);
  EXPECT_EQ(3, inner);
  EXPECT_EQ(10, clock.ticks);
}

TEST(WTimer, restsWhileTheBrowserIsAwayAndGoesOnAfterwards)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(100);
    c.count();
    c.timer->start();
  });
  clock.page->disconnect();
  clock.site.scheduler.advance(10s);
  EXPECT_EQ(0, clock.ticks);
  clock.page->reconnect();
  EXPECT_EQ(1, clock.ticks);
  clock.page->advance(300ms);
  EXPECT_EQ(4, clock.ticks);
}

TEST(WTimer, startedAgainAndAgainInOneEventSetsNoFurtherAlarm)
{
  auto *button = static_cast<WPushButton *>(nullptr);
  Clock clock([&button](Clock &c) {
    auto *app = static_cast<WApplication *>(c.timer->parent());
    c.timer->setInterval(180000);
    c.timer->start();
    button = new WPushButton("Restart", app->root());
    button->clicked().connect(std::bind([&c] {
      for (int i = 0; i < 500; ++i) {
        c.timer->stop();
        c.timer->start();
      }
    }));
  });
  const std::size_t before = clock.site.scheduler.alarmsSet();
  clock.page->click("Restart");
  EXPECT_EQ(before, clock.site.scheduler.alarmsSet());
  EXPECT_EQ(1u, clock.site.scheduler.alarms());
}

TEST(WTimer, anEarlierTickComesInTimeAfterALaterOneWasAwaited)
{
  int early = 0;
  Clock clock([&early](Clock &c) {
    auto *app = static_cast<WApplication *>(c.timer->parent());
    c.timer->setInterval(1000);
    c.count();
    c.timer->start();
    auto *other = new WTimer(app);
    other->setInterval(300);
    other->timeout().connect(std::bind([&early] { ++early; }));
    other->start();
  });
  clock.page->advance(299ms);
  EXPECT_EQ(0, early);
  clock.page->advance(1ms);
  EXPECT_EQ(1, early);
  clock.page->advance(700ms);
  EXPECT_EQ(3, early);
  EXPECT_EQ(1, clock.ticks);
}

TEST(WTimer, ticksOnceInHalfAMinuteWhileNobodySeesThePageAndAtOnceWhenSomebodyDoes)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(1000);
    c.count();
    c.timer->start();
  });
  clock.page->sendRaw("{\"vis\":0}");
  clock.page->advance(29s);
  EXPECT_EQ(0, clock.ticks);
  clock.page->advance(1s);
  EXPECT_EQ(1, clock.ticks);
  clock.page->advance(30s);
  EXPECT_EQ(2, clock.ticks);
  clock.page->advance(5s);
  clock.page->sendRaw("{\"vis\":1}");
  EXPECT_EQ(3, clock.ticks);
  clock.page->advance(3s);
  EXPECT_EQ(6, clock.ticks);
}

TEST(WTimer, aSingleShotKeepsItsTimeWhileNobodySeesThePage)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(1000);
    c.timer->setSingleShot(true);
    c.count();
    c.timer->start();
  });
  clock.page->sendRaw("{\"vis\":0}");
  clock.page->advance(1s);
  EXPECT_EQ(1, clock.ticks);
}

TEST(WTimer, aPageThatComesBackCountsAsSeen)
{
  Clock clock([](Clock &c) {
    c.timer->setInterval(1000);
    c.count();
    c.timer->start();
  });
  clock.page->sendRaw("{\"vis\":0}");
  clock.page->disconnect();
  clock.site.scheduler.advance(2s);
  clock.page->reconnect();
  EXPECT_EQ(1, clock.ticks);
  clock.page->advance(2s);
  EXPECT_EQ(3, clock.ticks);
}
