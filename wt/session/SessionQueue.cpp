// SPDX-License-Identifier: MIT
#include "session/SessionQueue.h"

#include <Wt/WException>

namespace Wt
{
namespace Engine
{

namespace
{

/// Processor time after which a session lets others go first.
const std::chrono::milliseconds kTurn(4);
/// A page at the door goes behind those who have used up to so many times as much.
const double kDoorWeight = 10;

} // namespace

SessionQueue::SessionQueue(std::shared_ptr<TurnQueue> turns, const SessionConfig &config,
                           std::function<Scheduler::Task()> turn)
    : turns_(std::move(turns)), config_(config), turn_(std::move(turn))
{
}

bool SessionQueue::full(const SessionWork &work) const
{
  const PageLimits &limits = entered_ ? config_.page : config_.doorPage;
  return work.kind == SessionWork::Message &&
         (messages_ >= limits.queuedMessages || bytes_ + work.text.size() > limits.queuedBytes);
}

double SessionQueue::rank() const
{
  // What ends gives its memory back.
  return killed_ ? 0 : use_.at(turns_->scheduler().now()) * (entered_ ? 1 : kDoorWeight);
}

void SessionQueue::wake()
{
  if (turnAsked_ || holder_ != Holder::Nobody || dead_ || (queue_.empty() && !killed_))
    return;
  turnAsked_ = true;
  turns_->add(rank(), turn_());
}

void SessionQueue::release()
{
  holder_ = Holder::Nobody;
  holderThread_ = std::thread::id();
  wake();
  released_.notify_all();
}

SessionQueue::Pushed SessionQueue::push(SessionWork &work)
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (killed_ || dead_)
    return Pushed::Killed;
  if (full(work))
    return Pushed::Full;
  if (work.kind == SessionWork::Message) {
    ++messages_;
    bytes_ += work.text.size();
  }
  queue_.push_back(std::move(work));
  wake();
  return Pushed::Yes;
}

bool SessionQueue::kill(const std::string &farewell)
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (killed_ || dead_)
    return false;
  killed_ = true;
  farewell_ = farewell;
  wake();
  released_.notify_all();
  return true;
}

bool SessionQueue::killed() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return killed_;
}

bool SessionQueue::dead() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return dead_;
}

void SessionQueue::enter()
{
  const std::lock_guard<std::mutex> held(mutex_);
  entered_ = true;
}

bool SessionQueue::lock(bool &alreadyHeld)
{
  std::unique_lock<std::mutex> held(mutex_);
  alreadyHeld = holder_ != Holder::Nobody && holderThread_ == std::this_thread::get_id();
  if (alreadyHeld)
    return true;
  released_.wait(held, [this] { return holder_ == Holder::Nobody || killed_ || dead_; });
  if (killed_ || dead_)
    return false;
  holder_ = Holder::Lock;
  holderThread_ = std::this_thread::get_id();
  return true;
}

void SessionQueue::unlock()
{
  const std::lock_guard<std::mutex> held(mutex_);
  release();
}

bool SessionQueue::heldByThisThread() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return holder_ != Holder::Nobody && holderThread_ == std::this_thread::get_id();
}

bool SessionQueue::lockedByThisThread() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return holder_ == Holder::Lock && holderThread_ == std::this_thread::get_id();
}

bool SessionQueue::beginTurn()
{
  const std::lock_guard<std::mutex> held(mutex_);
  turnAsked_ = false;
  if (holder_ != Holder::Nobody || dead_)
    return false;
  holder_ = Holder::Worker;
  holderThread_ = std::this_thread::get_id();
  turnBegan_ = turns_->scheduler().processorTime();
  turnUsed_ = false;
  return true;
}

void SessionQueue::endTurn(bool dead)
{
  const Scheduler &scheduler = turns_->scheduler();
  const auto used = scheduler.processorTime();
  const std::lock_guard<std::mutex> held(mutex_);
  use_.add(used - turnBegan_, scheduler.now());
  dead_ = dead;
  release();
}

bool SessionQueue::take(SessionWork &work)
{
  const std::lock_guard<std::mutex> held(mutex_);
  if (killed_)
    throw WException("session was killed");
  if (queue_.empty() || (turnUsed_ && turns_->scheduler().processorTime() - turnBegan_ >= kTurn))
    return false;
  turnUsed_ = true;
  work = std::move(queue_.front());
  queue_.pop_front();
  if (work.kind == SessionWork::Message) {
    --messages_;
    bytes_ -= work.text.size();
  }
  return true;
}

std::deque<SessionWork> SessionQueue::drop()
{
  std::deque<SessionWork> rest;
  const std::lock_guard<std::mutex> held(mutex_);
  rest.swap(queue_);
  messages_ = bytes_ = 0;
  return rest;
}

std::string SessionQueue::farewell() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return farewell_;
}

} // namespace Engine
} // namespace Wt
