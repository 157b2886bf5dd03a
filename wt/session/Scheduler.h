// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SCHEDULER_H_
#define WT_SESSION_SCHEDULER_H_

#include <chrono>
#include <cstdint>
#include <functional>

namespace Wt
{
namespace Engine
{

/**
 * Where sessions get their processor time and their sense of time from: the server's worker pool, or in tests
 * a loop that is driven by hand with a clock that stands still until it is told to move.
 */
class Scheduler
{
public:
  using Task = std::function<void()>;
  using TimePoint = std::chrono::steady_clock::time_point;
  using TimerId = std::uint64_t;

  virtual ~Scheduler() = default;

  /// Runs `task` soon, on a worker. Tasks of different callers may run at the same time. Thread safe.
  virtual void post(Task task) = 0;

  /// Runs `task` on a worker once `delay` has passed. Thread safe. The id is never 0.
  virtual TimerId after(std::chrono::milliseconds delay, Task task) = 0;

  /// Drops a task that has not started; one that has is not waited for. Unknown ids are ignored. Thread safe.
  virtual void cancel(TimerId id) = 0;

  virtual TimePoint now() const = 0;

  /// The processor time that the calling thread has used.
  virtual std::chrono::nanoseconds processorTime() const;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SCHEDULER_H_
