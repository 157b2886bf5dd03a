// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_TURN_QUEUE_H_
#define WT_SESSION_TURN_QUEUE_H_

#include "session/Scheduler.h"

#include <cstdint>
#include <memory>
#include <mutex>
#include <vector>

namespace Wt
{
namespace Engine
{

/// How much processor time somebody has had of late: what was used counts half after each second.
class RecentUse
{
public:
  void add(std::chrono::nanoseconds used, Scheduler::TimePoint now);
  /// In seconds. `now` is not before the last add().
  double at(Scheduler::TimePoint now) const;

private:
  double seconds_ = 0;
  Scheduler::TimePoint when_{};
};

/**
 * The sessions that want processor time, in the order in which they get it: the one with the least of late
 * goes first. A page that keeps its session busy so delays itself, and nobody else for longer than one turn.
 */
class TurnQueue : public std::enable_shared_from_this<TurnQueue>
{
public:
  /// The scheduler must outlive all turns.
  explicit TurnQueue(Scheduler &scheduler) : scheduler_(scheduler) {}

  /// Runs `turn` on a worker. `rank` is the recent use of the one who asks; the smallest goes first, of equal
  /// ones the earliest. Thread safe.
  void add(double rank, Scheduler::Task turn);

  Scheduler &scheduler() const { return scheduler_; }

private:
  struct Waiting {
    double rank;
    std::uint64_t number;
    Scheduler::Task turn;
  };

  static bool later(const Waiting &a, const Waiting &b);
  void runNext();

  Scheduler &scheduler_;
  std::mutex mutex_;
  std::vector<Waiting> heap_;
  std::uint64_t last_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_TURN_QUEUE_H_
