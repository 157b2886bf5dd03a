// SPDX-License-Identifier: MIT
#include "life/Clock.h"

#include <algorithm>
#include <utility>

namespace zelsim
{

namespace
{

constexpr std::chrono::milliseconds kLongestTurn{5};

} // namespace

Clock::Clock()
    : started_(std::chrono::steady_clock::now()),
      origin_(std::chrono::duration_cast<std::chrono::milliseconds>(
                  std::chrono::system_clock::now().time_since_epoch())
                  .count())
{
}

Clock::Milliseconds Clock::realNow() const
{
  auto passed = std::chrono::steady_clock::now() - started_;
  return origin_ + std::chrono::duration_cast<std::chrono::milliseconds>(passed).count();
}

Clock::Milliseconds Clock::nowMs() const
{
  return standing_ >= 0 ? standing_ : realNow();
}

Clock::Id Clock::after(Milliseconds delay, Action action)
{
  entries_.emplace(nowMs() + std::max<Milliseconds>(delay, 0), Entry{++lastId_, 0, std::move(action)});
  return lastId_;
}

Clock::Id Clock::every(Milliseconds period, Action action)
{
  period = std::max<Milliseconds>(period, 1);
  entries_.emplace(nowMs() + period, Entry{++lastId_, period, std::move(action)});
  return lastId_;
}

void Clock::cancel(Id id)
{
  cancelled_ = id == runningId_ ? id : cancelled_;
  auto found = std::find_if(entries_.begin(), entries_.end(),
                            [id](const auto &entry) { return entry.second.id == id; });
  if (found != entries_.end())
    entries_.erase(found);
}

bool Clock::runUntil(Milliseconds end, std::chrono::steady_clock::time_point deadline)
{
  bool ran = false;
  while (!entries_.empty() && entries_.begin()->first <= end) {
    auto node = entries_.extract(entries_.begin());
    Entry &entry = node.mapped();
    standing_ = node.key();
    runningId_ = entry.id;
    cancelled_ = 0;
    entry.action();
    runningId_ = 0;
    if (entry.period > 0 && cancelled_ != entry.id) {
      node.key() += entry.period;
      entries_.insert(std::move(node));
    }
    ran = true;
    if (std::chrono::steady_clock::now() >= deadline)
      break;
  }
  standing_ = -1;
  return ran;
}

bool Clock::runDue()
{
  Milliseconds now = realNow();
  if (entries_.empty() || entries_.begin()->first > now)
    return false;
  return runUntil(now, std::chrono::steady_clock::now() + kLongestTurn);
}

Clock::Milliseconds Clock::untilNext() const
{
  if (entries_.empty())
    return -1;
  return std::max<Milliseconds>(entries_.begin()->first - realNow(), 0);
}

void Clock::jump(Milliseconds distance)
{
  if (distance <= 0)
    return;
  runUntil(realNow() + distance, std::chrono::steady_clock::time_point::max());
  // What is still to come comes so much earlier.
  std::multimap<Milliseconds, Entry> entries;
  while (!entries_.empty()) {
    auto node = entries_.extract(entries_.begin());
    node.key() -= distance;
    entries.insert(entries.end(), std::move(node));
  }
  entries_.swap(entries);
}

} // namespace zelsim
