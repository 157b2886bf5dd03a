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
  const auto alarm = scheduler_.after(interval, makeAlarm_(ticket));
  runs_.emplace(ticket, Run{&timer, interval, alarm});
  return ticket;
}

void TimerSet::stop(Ticket ticket)
{
  const auto found = runs_.find(ticket);
  if (found == runs_.end())
    return;
  scheduler_.cancel(found->second.alarm);
  runs_.erase(found);
}

WTimer *TimerSet::take(Ticket ticket)
{
  const auto found = runs_.find(ticket);
  if (found == runs_.end())
    return nullptr;
  // A timer of no interval must leave room for other events.
  const auto next = std::max(found->second.interval, std::chrono::milliseconds(1));
  found->second.alarm = scheduler_.after(next, makeAlarm_(ticket));
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

void TimerSet::clear()
{
  for (const auto &run : runs_)
    scheduler_.cancel(run.second.alarm);
  runs_.clear();
  resting_.clear();
}

} // namespace Engine
} // namespace Wt
