// SPDX-License-Identifier: MIT
#include "http/WorkerThreads.h"

#include "base/Log.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace Wt
{
namespace Net
{

namespace
{

// Sessions have stacks of their own; this one is for resources and for functions that programs schedule.
constexpr std::size_t kStackSize = 1024 * 1024;
// A thread that has used no processor time for so long waits for something.
constexpr std::chrono::milliseconds kWatchInterval{10};
// About as many as there may be sessions.
constexpr int kMostSpares = 240;

} // namespace

WorkerThreads::WorkerThreads(std::function<bool()> serve) : serve_(std::move(serve)) {}

WorkerThreads::~WorkerThreads() = default;

void WorkerThreads::setLimit(int limit)
{
  limit_ = std::max(1, limit);
}

void WorkerThreads::start()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  running_ = true;
  add();
}

int WorkerThreads::count() const
{
  const std::lock_guard<std::mutex> lock(mutex_);
  return static_cast<int>(workers_.size());
}

void WorkerThreads::join()
{
  std::list<Worker> workers;
  bool watched = false;
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    running_ = false;
    workers.swap(workers_);
    std::swap(watched, watchStarted_);
    wakeWatch_.notify_all();
  }
  if (watched)
    pthread_join(watch_, nullptr);
  for (const Worker &worker : workers)
    pthread_join(worker.thread, nullptr);
  joinGone();
}

/// Signals are for the program's own threads.
bool WorkerThreads::launch(pthread_t &thread, void *(*body)(void *), void *argument)
{
  sigset_t all;
  sigset_t former;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &former);
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, kStackSize);
  const bool started = pthread_create(&thread, &attributes, body, argument) == 0;
  pthread_attr_destroy(&attributes);
  pthread_sigmask(SIG_SETMASK, &former, nullptr);
  if (!started)
    Engine::log(Engine::LogLevel::Error, "pool", "A worker thread cannot be started.");
  return started;
}

/// With the lock held.
void WorkerThreads::add()
{
  joinGone();
  const auto body = [](void *self) -> void * {
    static_cast<WorkerThreads *>(self)->work();
    return nullptr;
  };
  Worker worker = {};
  if (!launch(worker.thread, body, this))
    return;
  pthread_getcpuclockid(worker.thread, &worker.clock);
  workers_.push_back(worker);
}

/// Those that left have nothing more to do than to end.
void WorkerThreads::joinGone()
{
  for (const pthread_t thread : gone_)
    pthread_join(thread, nullptr);
  gone_.clear();
}

/// With the lock held, on one of the threads.
WorkerThreads::Worker &WorkerThreads::current()
{
  return *std::find_if(workers_.begin(), workers_.end(), [](const Worker &worker) {
    return pthread_equal(worker.thread, pthread_self()) != 0;
  });
}

void WorkerThreads::work()
{
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    if (running_)
      current().id = static_cast<pid_t>(::syscall(SYS_gettid));
  }
  while (serve_() && !leave()) {
  }
}

/// Whether this thread is one too many, now that others need none in their place any more.
bool WorkerThreads::leave()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  const int count = static_cast<int>(workers_.size());
  if (!running_ || count <= limit_ || busy_ + 1 >= count)
    return false;
  gone_.push_back(pthread_self());
  workers_.remove_if([self = &current()](const Worker &worker) { return &worker == self; });
  return true;
}

void WorkerThreads::entered()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  ++busy_;
  if (!allTaken())
    return;
  if (static_cast<int>(workers_.size()) < limit_)
    add();
  else
    wakeWatch();
}

void WorkerThreads::left()
{
  const std::lock_guard<std::mutex> lock(mutex_);
  --busy_;
}

// Threads that wait

/// With the lock held.
bool WorkerThreads::allTaken() const
{
  const int count = static_cast<int>(workers_.size());
  return running_ && busy_ >= count && count < limit_ + kMostSpares;
}

/// With the lock held. Most programs never need the watch.
void WorkerThreads::wakeWatch()
{
  const auto body = [](void *self) -> void * {
    static_cast<WorkerThreads *>(self)->watch();
    return nullptr;
  };
  if (!watchStarted_)
    watchStarted_ = launch(watch_, body, this);
  else if (!watchAwake_)
    wakeWatch_.notify_all();
}

/// Looks from time to time while all threads are taken, and sleeps when they are not.
void WorkerThreads::watch()
{
  std::unique_lock<std::mutex> lock(mutex_);
  while (running_) {
    watchAwake_ = false;
    wakeWatch_.wait(lock, [this] { return !running_ || allTaken(); });
    watchAwake_ = true;
    countWaiting();
    wakeWatch_.wait_for(lock, kWatchInterval, [this] { return !running_; });
    if (allTaken())
      makeUpForWaiting();
  }
}

/// With the lock held. Not more than one for each that waits, so that a few functions that wait do not start
/// many threads, and many are made up for in a few steps.
void WorkerThreads::makeUpForWaiting()
{
  const int waiting = countWaiting();
  const int count = static_cast<int>(workers_.size());
  if (count - waiting >= limit_)
    return;
  for (int i = std::min(waiting, limit_ + kMostSpares - count); i > 0; --i)
    add();
}

/// With the lock held. The threads that have used no processor time since the last call, and want none.
int WorkerThreads::countWaiting()
{
  int waiting = 0;
  for (Worker &worker : workers_) {
    timespec used = {};
    clock_gettime(worker.clock, &used);
    const bool resting = used.tv_sec == worker.used.tv_sec && used.tv_nsec == worker.used.tv_nsec;
    worker.used = used;
    waiting += resting && worker.sleeps();
  }
  return waiting;
}

/// On a busy machine a thread that could run may have to wait for its turn.
bool WorkerThreads::Worker::sleeps() const
{
  std::ifstream file("/proc/self/task/" + std::to_string(id) + "/stat");
  std::string text;
  std::getline(file, text);
  const std::size_t name = text.rfind(") "); // of the program, which may hold anything
  return name != std::string::npos && text.compare(name + 2, 1, "R") != 0;
}

} // namespace Net
} // namespace Wt
