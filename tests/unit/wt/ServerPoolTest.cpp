// SPDX-License-Identifier: MIT
#include "http/PoolScheduler.h"

#include <Wt/WIOService>
#include <atomic>
#include <condition_variable>
#include <ctime>
#include <future>
#include <gtest/gtest.h>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

using namespace Wt;
using namespace std::chrono_literals;

namespace
{

/// Counts, and lets a test wait for a number.
class Counter
{
public:
  void add()
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    ++count_;
    changed_.notify_all();
  }
  bool reaches(int number)
  {
    std::unique_lock<std::mutex> lock(mutex_);
    return changed_.wait_for(lock, 10s, [this, number] { return count_ >= number; });
  }

private:
  std::mutex mutex_;
  std::condition_variable changed_;
  int count_ = 0;
};

} // namespace

TEST(ServerPoolTest, functionsWithoutDelayRunInOrder)
{
  WIOService service;
  service.setThreadCount(4);
  service.start();
  std::vector<int> order;
  Counter counter;
  for (int i = 0; i < 200; ++i)
    service.schedule(0, [&order, &counter, i] {
      order.push_back(i);
      counter.add();
    });
  ASSERT_TRUE(counter.reaches(200));
  for (int i = 0; i < 200; ++i)
    EXPECT_EQ(order[static_cast<std::size_t>(i)], i);
}

TEST(ServerPoolTest, aDelayedFunctionRunsOnceAndNotTooEarly)
{
  WIOService service;
  service.start();
  std::promise<std::chrono::steady_clock::time_point> ran;
  const auto begin = std::chrono::steady_clock::now();
  service.schedule(30, [&ran] { ran.set_value(std::chrono::steady_clock::now()); });
  EXPECT_GE(ran.get_future().get() - begin, 30ms);
}

TEST(ServerPoolTest, aFunctionMayScheduleItselfAgainAndStopEndsTheChain)
{
  WIOService service;
  service.start();
  Counter counter;
  std::function<void()> again = [&] {
    service.schedule(1, again);
    counter.add();
  };
  again();
  EXPECT_TRUE(counter.reaches(5));
  service.stop();
}

TEST(ServerPoolTest, manyFunctionsThatWaitDelayNoOtherAndTheThreadsInTheirPlaceEndAfterThem)
{
  WIOService service;
  service.setThreadCount(3);
  service.start();
  Counter held;
  Counter others;
  std::promise<void> release;
  const std::shared_future<void> released = release.get_future().share();
  for (int i = 0; i < 60; ++i)
    service.submit([&held, released] {
      held.add();
      released.wait();
    });
  for (int i = 0; i < 100; ++i)
    service.submit([&others] { others.add(); });
  EXPECT_TRUE(others.reaches(100));
  EXPECT_TRUE(held.reaches(60));
  EXPECT_GT(service.threadsNow(), 60);
  Counter timers;
  service.schedule(1, [&timers] { timers.add(); });
  EXPECT_TRUE(timers.reaches(1));
  release.set_value();
  // A spare thread ends after the next thing that it does.
  for (int i = 1; service.threadsNow() > 3; ++i) {
    service.submit([&others] { others.add(); });
    ASSERT_TRUE(others.reaches(100 + i));
    ASSERT_LT(i, 100000);
  }
  EXPECT_EQ(service.threadsNow(), 3);
}

TEST(ServerPoolTest, functionsThatComputeAreNotHeldToBeWaiting)
{
  WIOService service;
  service.setThreadCount(2);
  service.start();
  Counter done;
  std::atomic<int> most{0};
  for (int i = 0; i < 6; ++i)
    service.submit([&service, &done, &most] {
      const std::clock_t until = std::clock() + CLOCKS_PER_SEC / 10;
      while (std::clock() < until) {
      }
      most = std::max(most.load(), service.threadsNow());
      done.add();
    });
  ASSERT_TRUE(done.reaches(6));
  EXPECT_LT(most, 6);
}

TEST(ServerPoolTest, oneHeldThreadDelaysNobody)
{
  WIOService service;
  service.start();
  std::promise<void> release;
  Counter begun;
  Counter others;
  const std::shared_future<void> released = release.get_future().share();
  service.submit([released, &begun] {
    begun.add();
    released.wait();
  });
  ASSERT_TRUE(begun.reaches(1));
  for (int i = 0; i < 100; ++i)
    service.submit([&others] { others.add(); });
  EXPECT_TRUE(others.reaches(100));
  release.set_value();
}

TEST(ServerPoolTest, anExceptionEndsItsFunctionOnly)
{
  WIOService service;
  service.setThreadCount(1);
  service.start();
  Counter counter;
  service.submit([] { throw std::runtime_error("on purpose"); });
  service.submit([&counter] { counter.add(); });
  EXPECT_TRUE(counter.reaches(1));
}

TEST(ServerPoolTest, whatHasNotBegunIsDroppedByStop)
{
  std::atomic<bool> ran{false};
  {
    WIOService service;
    service.start();
    service.schedule(60 * 1000, [&ran] { ran = true; });
    service.stop();
    service.submit([&ran] { ran = true; });
  }
  EXPECT_FALSE(ran);
}

TEST(ServerPoolTest, theSchedulerRunsTasksAndTimers)
{
  WIOService service;
  service.start();
  Engine::PoolScheduler scheduler(service);
  Counter counter;
  scheduler.post([&counter] { counter.add(); });
  const auto id = scheduler.after(1ms, [&counter] { counter.add(); });
  EXPECT_NE(id, 0u);
  EXPECT_TRUE(counter.reaches(2));
  service.stop();
}

TEST(ServerPoolTest, aCancelledTimerDoesNotRun)
{
  WIOService service;
  service.start();
  Engine::PoolScheduler scheduler(service);
  std::atomic<bool> ran{false};
  Counter counter;
  const auto id = scheduler.after(20ms, [&ran] { ran = true; });
  scheduler.cancel(id);
  scheduler.cancel(id);
  scheduler.cancel(12345);
  scheduler.after(40ms, [&counter] { counter.add(); });
  EXPECT_TRUE(counter.reaches(1));
  EXPECT_FALSE(ran);
  service.stop();
}
