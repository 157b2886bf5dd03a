// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_CLOCK_H_
#define ZEL_SIM_LIFE_CLOCK_H_

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>

namespace zelsim
{

/// The simulated switch's time, and what is to happen in it.
///
/// Simulated time runs with the real one. Actions run on the server's loop, in the order of their times, and
/// may schedule more. A jump runs every action on its way at that action's own time, as if the time had gone
/// by; when it is over it is the present again, and everything that is still to come has moved nearer.
class Clock
{
public:
  using Milliseconds = std::int64_t;
  using Action = std::function<void()>;
  using Id = std::uint64_t; // 0 is no action

  Clock();

  /// Milliseconds of simulated time since 1970.
  Milliseconds nowMs() const;
  /// Seconds since 1970, as the store's dates are.
  std::int64_t now() const { return nowMs() / 1000; }

  /// Runs `action` once, `delay` from now; a delay below 0 counts as 0.
  Id after(Milliseconds delay, Action action);
  /// Runs `action` again and again, first after `period` (at least 1).
  Id every(Milliseconds period, Action action);
  /// An action that has run, or 0, is allowed.
  void cancel(Id id);

  /// For the server's loop: runs what is due, for a few milliseconds at most, so that nobody who asks the
  /// switch something waits for thousands of devices. What is left is due at once. Returns whether anything
  /// ran.
  bool runDue();
  /// Milliseconds until the next action is due, 0 if one is, -1 if there is none.
  Milliseconds untilNext() const;

  /// Has all happen that is due within `distance`, now. For jumpAhead() (Jump.h), which moves the dates that
  /// the store keeps as well.
  void jump(Milliseconds distance);

private:
  struct Entry {
    Id id;
    Milliseconds period;
    Action action;
  };

  Milliseconds realNow() const;
  bool runUntil(Milliseconds end, std::chrono::steady_clock::time_point deadline);

  std::chrono::steady_clock::time_point started_;
  Milliseconds origin_;        // simulated time at started_
  Milliseconds standing_ = -1; // the time that stands while an action of the past runs, or -1
  Id lastId_ = 0;
  Id runningId_ = 0;
  Id cancelled_ = 0; // the running action, if it cancelled itself
  std::multimap<Milliseconds, Entry> entries_;
};

} // namespace zelsim

#endif // ZEL_SIM_LIFE_CLOCK_H_
