// SPDX-License-Identifier: MIT
#include "session/TimerSet.h"

#include <algorithm>

namespace Wt
{
namespace Engine
{

TimerSet::TimerSet(Scheduler &scheduler, AlarmMaker makeAlarm)
    : scheduler_(scheduler), makeAlarm_(std::move(makeAlarm))
{
}

TimerSet::~TimerSet()
{
  clear();
}

TimerSet::Ticket TimerSet::start(WTimer &timer, int milliSeconds)
{
  const Ticket ticket = ++last_;
  const std::chrono::milliseconds interval(std::max(milliSeconds, 0));
  Run &run = runs_.emplace(ticket, Run{&timer, interval, TimePoint()}).first->second;
  await(ticket, run, interval);
  return ticket;
}

void TimerSet::stop(Ticket ticket)
{
  const auto found = runs_.find(ticket);
  if (found == runs_.end())
    return;
  awaited_.erase({found->second.next, ticket});
  runs_.erase(found);
}

std::vector<TimerSet::Ticket> TimerSet::due()
{
  alarm_ = 0;
  std::vector<Ticket> tickets;
  const TimePoint now = scheduler_.now();
  while (!awaited_.empty() && awaited_.begin()->first <= now) {
    tickets.push_back(awaited_.begin()->second);
    awaited_.erase(awaited_.begin());
  }
  arm();
  return tickets;
}

WTimer *TimerSet::take(Ticket ticket)
{
  const auto found = runs_.find(ticket);
  if (found == runs_.end())
    return nullptr;
  // A timer of no interval must leave room for other events.
  await(ticket, found->second, std::max(found->second.interval, std::chrono::milliseconds(1)));
  return found->second.timer;
}

WTimer *TimerSet::running(Ticket ticket) const
{
  const auto found = runs_.find(ticket);
  return found == runs_.end() ? nullptr : found->second.timer;
}

void TimerSet::rest(Ticket ticket)
{
  if (runs_.count(ticket))
    resting_.push_back(ticket);
}

std::vector<TimerSet::Ticket> TimerSet::wake()
{
  std::vector<Ticket> woken;
  woken.swap(resting_);
  return woken;
}

void TimerSet::await(Ticket ticket, Run &run, std::chrono::milliseconds delay)
{
  run.next = scheduler_.now() + delay;
  awaited_.emplace(run.next, ticket);
  arm();
}

/// An alarm that comes too early finds nothing due, and is set again; so only an earlier tick needs a new
/// one.
void TimerSet::arm()
{
  if (awaited_.empty() || (alarm_ && alarmAt_ <= awaited_.begin()->first))
    return;
  disarm();
  alarmAt_ = awaited_.begin()->first;
  // Rounded up: an alarm must not come before the tick that it is for.
  const auto delay = std::chrono::ceil<std::chrono::milliseconds>(alarmAt_ - scheduler_.now());
  alarm_ = scheduler_.after(std::max(delay, std::chrono::milliseconds(0)), makeAlarm_());
}

void TimerSet::disarm()
{
  if (alarm_)
    scheduler_.cancel(alarm_);
  alarm_ = 0;
}

void TimerSet::settle()
{
  if (awaited_.empty())
    disarm();
}

void TimerSet::clear()
{
  disarm();
  runs_.clear();
  awaited_.clear();
  resting_.clear();
}

} // namespace Engine
} // namespace Wt
