// SPDX-License-Identifier: MIT
#include "Response.h"

#include "session/SessionHost.h"

#include <condition_variable>
#include <mutex>

namespace Wt
{
namespace Http
{

namespace
{

// How soon a waiting answer notices that its browser or its resource has gone.
constexpr std::chrono::milliseconds kLookInterval{500};

} // namespace

struct ResponseContinuation::Gate {
  mutable std::mutex mutex;
  std::condition_variable more;
  bool waiting = false;
};

ResponseContinuation::ResponseContinuation(WResource *resource)
    : resource_(resource), gate_(std::make_unique<Gate>())
{
}

ResponseContinuation::~ResponseContinuation() = default;

void ResponseContinuation::waitForMoreData()
{
  const std::lock_guard<std::mutex> lock(gate_->mutex);
  gate_->waiting = true;
}

void ResponseContinuation::haveMoreData()
{
  const std::lock_guard<std::mutex> lock(gate_->mutex);
  gate_->waiting = false;
  gate_->more.notify_all();
}

bool ResponseContinuation::isWaitingForMoreData() const
{
  const std::lock_guard<std::mutex> lock(gate_->mutex);
  return gate_->waiting;
}

bool ResponseContinuation::pass(const std::function<bool()> &goOn) const
{
  std::unique_lock<std::mutex> lock(gate_->mutex);
  while (gate_->waiting && goOn())
    gate_->more.wait_for(lock, kLookInterval);
  return goOn();
}

Response::Response(WResource *resource, Engine::ResourceResponse &target, std::string disposition)
    : resource_(resource), target_(&target), disposition_(std::move(disposition))
{
}

Response::Response(WResource *resource, std::ostream &target) : resource_(resource), stream_(&target) {}

Response::~Response() = default;

void Response::setStatus(int status)
{
  if (target_)
    target_->setStatus(status);
}

void Response::setMimeType(const std::string &mimeType)
{
  if (target_)
    target_->setMimeType(mimeType);
}

void Response::addHeader(const std::string &name, const std::string &value)
{
  if (target_)
    target_->addHeader(name, value);
}

void Response::setContentLength(std::uint64_t length)
{
  if (target_)
    target_->setContentLength(length);
}

void Response::begin()
{
  if (begun_ || !target_)
    return;
  begun_ = true;
  if (!disposition_.empty())
    target_->addHeader("Content-Disposition", disposition_);
}

std::ostream &Response::out()
{
  begin();
  return target_ ? target_->out() : *stream_;
}

ResponseContinuation *Response::createContinuation()
{
  next_.reset(new ResponseContinuation(resource_));
  return next_.get();
}

bool Response::connected() const
{
  return !target_ || target_->connected();
}

} // namespace Http
} // namespace Wt
