// SPDX-License-Identifier: MIT
#include "WIOService.h"

#include "base/Log.h"

#include <algorithm>
#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context_strand.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <csignal>
#include <list>
#include <mutex>
#include <optional>
#include <pthread.h>

namespace Wt
{

namespace
{

namespace asio = boost::asio;

// Sessions have stacks of their own; this one is for resources and for functions that programs schedule.
constexpr std::size_t stackSize = 1024 * 1024;

} // namespace

struct WIOService::Impl {
  using Guard = asio::executor_work_guard<asio::io_context::executor_type>;

  explicit Impl(WIOService &service) : strand(service) {}

  asio::io_context::strand strand;
  std::mutex mutex;
  std::optional<Guard> guard; ///< keeps idle threads; set while running
  std::list<pthread_t> threads;
  int limit = 10;
  int busy = 0;
};

WIOService::WIOService() : impl_(std::make_unique<Impl>(*this)) {}

WIOService::~WIOService()
{
  stop();
}

void WIOService::setThreadCount(int count)
{
  impl_->limit = std::max(1, count);
}

int WIOService::threadCount() const
{
  return impl_->limit;
}

void WIOService::start()
{
  const std::lock_guard<std::mutex> lock(impl_->mutex);
  if (impl_->guard)
    return;
  restart();
  impl_->guard.emplace(asio::make_work_guard(*this));
  addThread();
}

/// With the lock held. Signals are for the program's own threads.
void WIOService::addThread()
{
  sigset_t all;
  sigset_t former;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &former);
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, stackSize);
  const auto body = [](void *service) -> void * {
    static_cast<WIOService *>(service)->run();
    return nullptr;
  };
  pthread_t thread;
  if (pthread_create(&thread, &attributes, body, this) == 0)
    impl_->threads.push_back(thread);
  else
    Engine::log(Engine::LogLevel::Error, "pool", "A worker thread cannot be started.");
  pthread_attr_destroy(&attributes);
  pthread_sigmask(SIG_SETMASK, &former, nullptr);
}

void WIOService::stop()
{
  std::list<pthread_t> threads;
  {
    const std::lock_guard<std::mutex> lock(impl_->mutex);
    impl_->guard.reset();
    threads.swap(impl_->threads);
  }
  asio::io_context::stop();
  for (const pthread_t thread : threads)
    pthread_join(thread, nullptr);
}

void WIOService::perform(const std::function<void()> &function)
{
  {
    const std::lock_guard<std::mutex> lock(impl_->mutex);
    ++impl_->busy;
    const int threads = static_cast<int>(impl_->threads.size());
    if (impl_->guard && impl_->busy >= threads && threads < impl_->limit)
      addThread();
  }
  try {
    function();
  } catch (const std::exception &e) {
    Engine::log(Engine::LogLevel::Error, "pool",
                std::string("An exception escaped a function on a worker thread: ") + e.what());
  }
  const std::lock_guard<std::mutex> lock(impl_->mutex);
  --impl_->busy;
}

void WIOService::submit(std::function<void()> function)
{
  asio::post(*this, [this, function = std::move(function)] { perform(function); });
}

void WIOService::schedule(int milliSeconds, const boost::function<void()> &function)
{
  if (milliSeconds <= 0) {
    asio::post(impl_->strand, [this, function] { perform(function); });
    return;
  }
  const auto timer = std::make_shared<asio::steady_timer>(*this, std::chrono::milliseconds(milliSeconds));
  timer->async_wait([this, function, timer](const boost::system::error_code &ec) {
    if (!ec)
      perform(function);
  });
}

void WIOService::post(const boost::function<void()> &function)
{
  schedule(0, function);
}

} // namespace Wt
