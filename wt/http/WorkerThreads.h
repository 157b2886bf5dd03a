// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_WORKER_THREADS_H_
#define WT_HTTP_WORKER_THREADS_H_

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <ctime>
#include <functional>
#include <list>
#include <mutex>
#include <pthread.h>
#include <sys/types.h>
#include <vector>

namespace Wt
{
namespace Net
{

/**
 * Threads that take functions from a queue. They are started as they are needed: up to the limit there is
 * always one that waits for work. Beyond it, a thread that waits inside a function, such as for an answer of
 * the store, does not count: others are started in its place after some milliseconds, and end when it goes
 * on. So a function that waits delays none of the others.
 */
class WorkerThreads
{
public:
  /// `serve` takes one function from the queue and runs it, or returns false once there will be none any
  /// more.
  explicit WorkerThreads(std::function<bool()> serve);
  /// Stopped before.
  ~WorkerThreads();

  /// At least 1; before start().
  void setLimit(int limit);
  int limit() const { return limit_; }
  void start();
  /// Waits for the threads; the queue has been told to end.
  void join();
  /// The threads that there are, idle ones included. Thread safe.
  int count() const;

  /// Around each function, on a thread of these.
  void entered();
  void left();

private:
  struct Worker {
    pthread_t thread;
    clockid_t clock; ///< the processor time that the thread has used
    timespec used;
    pid_t id; ///< the system's; 0 until the thread runs

    bool sleeps() const;
  };

  static bool launch(pthread_t &thread, void *(*body)(void *), void *argument);
  void add();
  void work();
  Worker &current();
  bool leave();
  void joinGone();
  bool allTaken() const;
  void wakeWatch();
  void watch();
  void makeUpForWaiting();
  int countWaiting();

  const std::function<bool()> serve_;
  mutable std::mutex mutex_;
  std::list<Worker> workers_;
  std::vector<pthread_t> gone_; ///< have ended or are about to
  int limit_ = 10;
  int busy_ = 0;
  bool running_ = false;

  pthread_t watch_ = {};
  bool watchStarted_ = false;
  bool watchAwake_ = false;
  std::condition_variable wakeWatch_;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_WORKER_THREADS_H_
