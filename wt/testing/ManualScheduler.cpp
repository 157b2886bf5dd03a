// SPDX-License-Identifier: MIT
#include "testing/ManualScheduler.h"

namespace Wt
{
namespace Testing
{

void ManualScheduler::post(Task task)
{
  const std::lock_guard<std::mutex> held(mutex_);
  tasks_.push_back(std::move(task));
}

ManualScheduler::TimerId ManualScheduler::after(std::chrono::milliseconds delay, Task task)
{
  const std::lock_guard<std::mutex> held(mutex_);
  const TimerId id = ++last_;
  alarms_.emplace(std::make_pair(now_ + delay, id), std::move(task));
  return id;
}

void ManualScheduler::cancel(TimerId id)
{
  const std::lock_guard<std::mutex> held(mutex_);
  for (auto i = alarms_.begin(); i != alarms_.end(); ++i) {
    if (i->first.second == id) {
      alarms_.erase(i);
      return;
    }
  }
}

ManualScheduler::TimePoint ManualScheduler::now() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return now_;
}

std::size_t ManualScheduler::alarms() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return alarms_.size();
}

std::size_t ManualScheduler::alarmsSet() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return last_;
}

bool ManualScheduler::next(Task &task)
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (tasks_.empty())
    return false;
  task = std::move(tasks_.front());
  tasks_.pop_front();
  return true;
}

bool ManualScheduler::nextAlarm(TimePoint until, Task &task)
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (alarms_.empty() || alarms_.begin()->first.first > until) {
    now_ = until;
    return false;
  }
  now_ = std::max(now_, alarms_.begin()->first.first);
  task = std::move(alarms_.begin()->second);
  alarms_.erase(alarms_.begin());
  return true;
}

void ManualScheduler::run()
{
  for (Task task; next(task); task = nullptr)
    task();
}

void ManualScheduler::advance(std::chrono::milliseconds time)
{
  const TimePoint until = now() + time;
  run();
  for (Task task; nextAlarm(until, task); task = nullptr) {
    task();
    run();
  }
}

} // namespace Testing
} // namespace Wt
