// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_QUEUE_H_
#define WT_SESSION_SESSION_QUEUE_H_

#include "session/SessionConfig.h"
#include "session/SessionWork.h"
#include "session/TurnQueue.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace Wt
{
namespace Engine
{

/**
 * What waits for a session, and who has the session.
 *
 * One thread at a time holds the session: a worker during a turn, or any thread that has the lock. Only the
 * holder touches the application, its widgets and the page. These hold whenever the mutex is free:
 *
 * - While there is something to do (work waits, or the session was killed), nobody holds the session and it
 * is not dead, a turn has been asked for. push(), kill() and each end of a hold see to it.
 * - At most one turn has been asked for. One that comes while somebody holds the session does nothing: the
 * end of the hold asks again.
 * - Killed is for good. From then on no work comes in, and take() throws, so that the handlers that wait
 * unwind. Dead follows when the session's fiber has ended.
 */
class SessionQueue
{
public:
  enum class Pushed { Yes, Killed, Full };

  /// `turn` makes the function that a worker calls when the session's turn has come.
  SessionQueue(std::shared_ptr<TurnQueue> turns, const SessionConfig &config,
               std::function<Scheduler::Task()> turn);

  /// From any thread

  /// Leaves the work to the caller if it does not take it.
  Pushed push(SessionWork &work);
  /// False if it was killed before. `farewell` is a last message to the page.
  bool kill(const std::string &farewell);
  bool killed() const;
  bool dead() const;
  /// From now on the page has what a page beyond the door is allowed.
  void enter();

  /// Waits until no other thread has the session; false if it was killed. True at once if this thread has it.
  bool lock(bool &alreadyHeld);
  void unlock();
  bool heldByThisThread() const;
  /// True if this thread has it by lock().
  bool lockedByThisThread() const;

  /// On a worker

  /// False if somebody else has the session.
  bool beginTurn();
  void endTurn(bool dead);

  /// On the fiber

  /// The next work. False if there is none, or the turn has lasted long enough. Throws WException when the
  /// session was killed.
  bool take(SessionWork &work);
  /// What is left when the session ends, and the farewell.
  std::deque<SessionWork> drop();
  std::string farewell() const;

private:
  enum class Holder { Nobody, Worker, Lock };

  // All of these want the mutex held.
  bool full(const SessionWork &work) const;
  void wake();
  void release();
  double rank() const;

  const std::shared_ptr<TurnQueue> turns_;
  const SessionConfig &config_;
  const std::function<Scheduler::Task()> turn_;

  mutable std::mutex mutex_;
  std::condition_variable released_;
  std::deque<SessionWork> queue_;
  std::size_t messages_ = 0; ///< in the queue
  std::size_t bytes_ = 0;    ///< of these
  std::string farewell_;
  std::thread::id holderThread_;
  Holder holder_ = Holder::Nobody;
  bool turnAsked_ = false;
  bool killed_ = false;
  bool dead_ = false;
  bool entered_ = false;
  RecentUse use_;

  // Of the present turn.
  std::chrono::nanoseconds turnBegan_{};
  bool turnUsed_ = false; ///< something was taken in it
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_QUEUE_H_
