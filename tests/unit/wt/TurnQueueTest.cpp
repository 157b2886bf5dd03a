// SPDX-License-Identifier: MIT
#include "session/TurnQueue.h"

#include "testing/TestSite.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WText>
#include <gtest/gtest.h>
#include <string>

using namespace Wt;
using namespace Wt::Testing;
using namespace std::chrono_literals;
using Engine::RecentUse;
using Engine::TurnQueue;

namespace
{

/// Two sessions that write down when they get to do something.
class Rivals
{
public:
  Rivals()
      : site(TestSite::building([this](WApplication &app) {
          new WText("here", app.root());
          ids.push_back(app.sessionId());
        })),
        busy(site.openPage()), quiet(site.openPage())
  {
  }

  /// Gives a session something that takes some time.
  void give(std::size_t session, const std::string &word, std::chrono::milliseconds time)
  {
    site.manager->post(ids[session], [this, word, time] {
      record += word;
      site.scheduler.useProcessor(time);
    });
  }

  std::vector<std::string> ids;
  std::string record;
  TestSite site;
  std::unique_ptr<HeadlessBrowser> busy;
  std::unique_ptr<HeadlessBrowser> quiet;
};

} // namespace

TEST(RecentUse, countsHalfAfterEachSecond)
{
  const Engine::Scheduler::TimePoint begin(1h);
  RecentUse use;
  EXPECT_EQ(0, use.at(begin));
  use.add(100ms, begin);
  EXPECT_NEAR(0.1, use.at(begin), 1e-9);
  EXPECT_NEAR(0.05, use.at(begin + 1s), 1e-9);
  use.add(100ms, begin + 2s);
  EXPECT_NEAR(0.125, use.at(begin + 2s), 1e-9);
}

TEST(TurnQueue, theOneWithTheLeastUseGoesFirstAndOfEqualOnesTheEarliest)
{
  ManualScheduler scheduler;
  const auto queue = std::make_shared<TurnQueue>(scheduler);
  std::string order;
  const auto turn = [&order](char name) { return [&order, name] { order += name; }; };
  queue->add(0.5, turn('c'));
  queue->add(0.1, turn('a'));
  queue->add(0.9, turn('e'));
  queue->add(0.5, turn('d'));
  queue->add(0.1, turn('b'));
  scheduler.run();
  EXPECT_EQ("abcde", order);
}

TEST(Turns, aSessionWithMuchToDoLetsOthersInAfterSomeMilliseconds)
{
  Rivals rivals;
  for (int i = 0; i < 20; ++i)
    rivals.give(0, "b", 2ms);
  rivals.give(1, "q", 0ms);
  rivals.site.scheduler.run();
  EXPECT_EQ(21u, rivals.record.size()) << "everything is done in the end";
  EXPECT_LE(rivals.record.find('q'), 3u);
}

TEST(Turns, aSessionThatHasHadLittleGoesBeforeOneThatHasHadMuch)
{
  Rivals rivals;
  rivals.give(0, "b", 50ms);
  rivals.site.scheduler.run();
  rivals.give(0, "b", 0ms);
  rivals.give(1, "q", 0ms);
  rivals.site.scheduler.run();
  EXPECT_EQ("bqb", rivals.record);
}

TEST(Turns, whatWasUsedLongAgoDoesNotCount)
{
  Rivals rivals;
  rivals.give(0, "b", 50ms);
  rivals.site.scheduler.advance(60s);
  rivals.give(1, "q", 10ms);
  rivals.site.scheduler.run();
  rivals.give(1, "q", 0ms);
  rivals.give(0, "b", 0ms);
  rivals.site.scheduler.run();
  EXPECT_EQ("bqbq", rivals.record);
}

TEST(Turns, aPageAtTheDoorGoesBehindOneThatIsInWithTheSameUse)
{
  std::string record;
  std::vector<std::string> ids;
  TestSite site(TestSite::building([&ids](WApplication &app) {
    ids.push_back(app.sessionId());
    if (ids.size() == 2)
      new WText("in", app.root());
  }));
  const auto door = site.openPage();
  const auto in = site.openPage();
  const auto give = [&](std::size_t session, const char *word) {
    site.manager->post(ids[session], [&record, &site, word] {
      record += word;
      site.scheduler.useProcessor(10ms);
    });
  };
  give(0, "d");
  give(1, "i");
  site.scheduler.run();
  give(0, "d");
  give(1, "i");
  site.scheduler.run();
  EXPECT_EQ("diid", record);
}
