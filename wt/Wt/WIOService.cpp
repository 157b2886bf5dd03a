// SPDX-License-Identifier: MIT
#include "WIOService.h"

#include "base/Log.h"
#include "http/WorkerThreads.h"

#include <boost/asio/executor_work_guard.hpp>
#include <boost/asio/io_context_strand.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <mutex>
#include <optional>

namespace Wt
{

namespace
{

namespace asio = boost::asio;

} // namespace

struct WIOService::Impl {
  using Guard = asio::executor_work_guard<asio::io_context::executor_type>;

  explicit Impl(WIOService &service) : strand(service), threads([&service] { return service.run_one() > 0; })
  {
  }

  asio::io_context::strand strand;
  std::mutex mutex;
  std::optional<Guard> guard; ///< keeps idle threads; set while running
  Net::WorkerThreads threads;
};

WIOService::WIOService() : impl_(std::make_unique<Impl>(*this)) {}

WIOService::~WIOService()
{
  stop();
}

void WIOService::setThreadCount(int count)
{
  impl_->threads.setLimit(count);
}

int WIOService::threadCount() const
{
  return impl_->threads.limit();
}

int WIOService::threadsNow() const
{
  return impl_->threads.count();
}

void WIOService::start()
{
  const std::lock_guard<std::mutex> lock(impl_->mutex);
  if (impl_->guard)
    return;
  restart();
  impl_->guard.emplace(asio::make_work_guard(*this));
  impl_->threads.start();
}

void WIOService::stop()
{
  {
    const std::lock_guard<std::mutex> lock(impl_->mutex);
    impl_->guard.reset();
  }
  asio::io_context::stop();
  impl_->threads.join();
}

void WIOService::perform(const std::function<void()> &function)
{
  impl_->threads.entered();
  try {
    function();
  } catch (const std::exception &e) {
    Engine::log(Engine::LogLevel::Error, "pool",
                std::string("An exception escaped a function on a worker thread: ") + e.what());
  }
  impl_->threads.left();
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
