// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_TIMER_SET_H_
#define WT_SESSION_TIMER_SET_H_

#include "session/Scheduler.h"

#include <cstdint>
#include <set>
#include <unordered_map>
#include <utility>
#include <vector>

namespace Wt
{

class WTimer;

namespace Engine
{

/**
 * The running timers of one session. A tick is told by its ticket, which no other run of a timer has. There
 * is one alarm for all of them, for the earliest: a timer that is started again and again, as with each key
 * that a user presses, costs no alarm. Not thread safe: belongs to the session.
 */
class TimerSet
{
public:
  using Ticket = std::uint64_t;

  using AlarmMaker = std::function<Scheduler::Task()>;

  /// What `makeAlarm` returns is called on a worker when due() is to be asked; the set, and its session, may
  /// be gone by then.
  TimerSet(Scheduler &scheduler, AlarmMaker makeAlarm);
  ~TimerSet();
  TimerSet(const TimerSet &) = delete;
  TimerSet &operator=(const TimerSet &) = delete;

  Ticket start(WTimer &timer, int milliSeconds);
  void stop(Ticket ticket);

  /// The alarm went off: the ticks whose time has come, in their order.
  std::vector<Ticket> due();
  /// The timer of a tick, with its next tick under way; null if it was stopped meanwhile.
  WTimer *take(Ticket ticket);
  /// The timer of a run that was not stopped, or null.
  WTimer *running(Ticket ticket) const;

  /// The tick waits for wake().
  void rest(Ticket ticket);
  /// The ticks that rested, in their order.
  std::vector<Ticket> wake();

  /// Gives the alarm back if no timer runs. Between events, so that a timer which is stopped and started
  /// again within one keeps it.
  void settle();
  void clear();

private:
  using TimePoint = Scheduler::TimePoint;
  struct Run {
    WTimer *timer;
    std::chrono::milliseconds interval;
    TimePoint next;
  };

  void await(Ticket ticket, Run &run, std::chrono::milliseconds delay);
  void arm();
  void disarm();

  Scheduler &scheduler_;
  AlarmMaker makeAlarm_;
  std::unordered_map<Ticket, Run> runs_;
  std::set<std::pair<TimePoint, Ticket>> awaited_;
  std::vector<Ticket> resting_;
  Ticket last_ = 0;
  Scheduler::TimerId alarm_ = 0; ///< 0: none
  TimePoint alarmAt_{};          ///< not after the earliest awaited tick
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_TIMER_SET_H_
