// SPDX-License-Identifier: MIT
#include "http/PoolScheduler.h"

#include <Wt/WIOService>
#include <algorithm>

namespace Wt
{
namespace Engine
{

PoolScheduler::PoolScheduler(WIOService &service) : service_(service) {}

PoolScheduler::~PoolScheduler() = default;

void PoolScheduler::post(Task task)
{
  service_.submit(std::move(task));
}

Scheduler::TimerId PoolScheduler::after(std::chrono::milliseconds delay, Task task)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  const TimerId id = ++last_;
  auto &timer = timers_[id] =
      std::make_unique<Timer>(service_, std::max(delay, std::chrono::milliseconds(0)));
  timer->async_wait([this, id, task = std::move(task)](const boost::system::error_code &ec) {
    if (!ec)
      service_.perform([this, id, &task] { due(id, task); });
  });
  return id;
}

/// A timer that was cancelled after it became due is not in the table any more.
void PoolScheduler::due(TimerId id, const Task &task)
{
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (timers_.erase(id) == 0)
      return;
  }
  task();
}

void PoolScheduler::cancel(TimerId id)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  timers_.erase(id);
}

Scheduler::TimePoint PoolScheduler::now() const
{
  return std::chrono::steady_clock::now();
}

} // namespace Engine
} // namespace Wt
