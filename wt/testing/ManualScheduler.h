// SPDX-License-Identifier: MIT
#ifndef WT_TESTING_MANUAL_SCHEDULER_H_
#define WT_TESTING_MANUAL_SCHEDULER_H_

#include "session/Scheduler.h"

#include <deque>
#include <map>
#include <mutex>

namespace Wt
{
namespace Testing
{

/// A scheduler for tests: the clock stands still until advance() moves it, and tasks run on the thread that
/// calls run() or advance().
class ManualScheduler : public Engine::Scheduler
{
public:
  void post(Task task) override;
  TimerId after(std::chrono::milliseconds delay, Task task) override;
  void cancel(TimerId id) override;
  TimePoint now() const override;
  /// Stands still too, until useProcessor() moves it.
  std::chrono::nanoseconds processorTime() const override { return used_; }
  void useProcessor(std::chrono::nanoseconds time) { used_ += time; }

  /// Runs tasks until there are none.
  void run();
  /// Moves the clock, running every task at its time.
  void advance(std::chrono::milliseconds time);
  /// Number of tasks that wait for their time.
  std::size_t alarms() const;
  /// Number of tasks that ever had to wait for a time.
  std::size_t alarmsSet() const;

private:
  bool next(Task &task);
  bool nextAlarm(TimePoint until, Task &task);

  mutable std::mutex mutex_;
  std::deque<Task> tasks_;
  std::map<std::pair<TimePoint, TimerId>, Task> alarms_;
  TimePoint now_{std::chrono::hours(1)};
  std::chrono::nanoseconds used_{};
  TimerId last_ = 0;
};

} // namespace Testing
} // namespace Wt

#endif // WT_TESTING_MANUAL_SCHEDULER_H_
