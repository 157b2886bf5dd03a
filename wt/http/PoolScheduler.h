// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_POOL_SCHEDULER_H_
#define WT_HTTP_POOL_SCHEDULER_H_

#include "session/Scheduler.h"

#include <boost/asio/steady_timer.hpp>
#include <memory>
#include <mutex>
#include <unordered_map>

namespace Wt
{

class WIOService;

namespace Engine
{

/// Sessions' work and timers on the server's worker threads.
class PoolScheduler : public Scheduler
{
public:
  /// The service must outlive the scheduler and be stopped before it dies.
  explicit PoolScheduler(WIOService &service);
  ~PoolScheduler() override;

  void post(Task task) override;
  TimerId after(std::chrono::milliseconds delay, Task task) override;
  void cancel(TimerId id) override;
  TimePoint now() const override;

private:
  using Timer = boost::asio::steady_timer;

  WIOService &service_;
  std::mutex mutex_;
  TimerId last_ = 0;
  std::unordered_map<TimerId, std::unique_ptr<Timer>> timers_;

  void due(TimerId id, const Task &task);
};

} // namespace Engine
} // namespace Wt

#endif // WT_HTTP_POOL_SCHEDULER_H_
