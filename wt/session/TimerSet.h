// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_TIMER_SET_H_
#define WT_SESSION_TIMER_SET_H_

#include "session/Scheduler.h"

#include <cstdint>
#include <functional>
#include <unordered_map>
#include <vector>

namespace Wt
{

class WTimer;

namespace Engine
{

/// The running timers of one session. A tick is told by its ticket, which no other run of a timer has. Not
/// thread safe: belongs to the session.
class TimerSet
{
public:
  using Ticket = std::uint64_t;

  using AlarmMaker = std::function<Scheduler::Task(Ticket)>;

  /// What `makeAlarm` returns is called on a worker when the time of the run with that ticket has come; the
  /// set, and its session, may be gone by then.
  TimerSet(Scheduler &scheduler, AlarmMaker makeAlarm);
  ~TimerSet();

  Ticket start(WTimer &timer, int milliSeconds);
  void stop(Ticket ticket);

  /// The timer of a tick, with its next tick under way; null if it was stopped meanwhile.
  WTimer *take(Ticket ticket);
  /// The timer of a run that was not stopped, or null.
  WTimer *running(Ticket ticket) const;

  /// The tick waits for wake().
  void rest(Ticket ticket);
  /// The ticks that rested, in their order.
  std::vector<Ticket> wake();

  void clear();

private:
  struct Run {
    WTimer *timer;
    std::chrono::milliseconds interval;
    Scheduler::TimerId alarm;
  };

  Scheduler &scheduler_;
  AlarmMaker makeAlarm_;
  std::unordered_map<Ticket, Run> runs_;
  std::vector<Ticket> resting_;
  Ticket last_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_TIMER_SET_H_
