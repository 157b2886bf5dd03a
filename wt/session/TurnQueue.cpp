// SPDX-License-Identifier: MIT
#include "session/TurnQueue.h"

#include <algorithm>
#include <cmath>

namespace Wt
{
namespace Engine
{

void RecentUse::add(std::chrono::nanoseconds used, Scheduler::TimePoint now)
{
  seconds_ = at(now) + std::chrono::duration<double>(used).count();
  when_ = now;
}

double RecentUse::at(Scheduler::TimePoint now) const
{
  return seconds_ == 0 ? 0 : seconds_ * std::exp2(-std::chrono::duration<double>(now - when_).count());
}

bool TurnQueue::later(const Waiting &a, const Waiting &b)
{
  return a.rank != b.rank ? a.rank > b.rank : a.number > b.number;
}

void TurnQueue::add(double rank, Scheduler::Task turn)
{
  {
    const std::lock_guard<std::mutex> held(mutex_);
    heap_.push_back(Waiting{rank, ++last_, std::move(turn)});
    std::push_heap(heap_.begin(), heap_.end(), later);
  }
  scheduler_.post([self = shared_from_this()] { self->runNext(); });
}

/// There are as many calls as turns were added, so that each finds one.
void TurnQueue::runNext()
{
  Scheduler::Task turn;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    std::pop_heap(heap_.begin(), heap_.end(), later);
    turn = std::move(heap_.back().turn);
    heap_.pop_back();
  }
  turn();
}

} // namespace Engine
} // namespace Wt
