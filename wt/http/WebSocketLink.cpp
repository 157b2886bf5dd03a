// SPDX-License-Identifier: MIT
#include "http/WebSocketLink.h"

#include "base/Log.h"
#include "http/ByteChannel.h"

#include <utility>

namespace Wt
{
namespace Net
{

WebSocketLink::WebSocketLink(HttpService &service, ByteChannel &channel)
    : service_(service), loop_(service.loop), channel_(&channel),
      deadline_(loop_.now() + service.limits.greeting)
{
}

WebSocketLink::~WebSocketLink() = default;

// Any thread

void WebSocketLink::send(std::string message)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  if (dead_ || closeWanted_ || overflown_)
    return;
  if (outbox_.size() + message.size() > longestQueue) {
    overflown_ = true;
    outbox_ = std::string();
  } else if (outbox_.empty()) {
    outbox_ = WebSocketCodec::textFrame(message);
  } else {
    outbox_ += WebSocketCodec::textFrame(message);
  }
  wake(lock);
}

void WebSocketLink::close(const std::string &reason)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  if (dead_ || closeWanted_)
    return;
  closeWanted_ = true;
  closeReason_ = reason;
  wake(lock);
}

/// With the lock held, so that the loop is not used once gone() has returned.
void WebSocketLink::wake(const std::lock_guard<std::mutex> &)
{
  if (!std::exchange(posted_, true))
    loop_.post([self = shared_from_this()] { self->flush(); });
}

// Network thread

void WebSocketLink::flush()
{
  std::unique_lock<std::mutex> lock(mutex_);
  posted_ = false;
  std::string frames = std::exchange(outbox_, std::string());
  const bool closeWanted = closeWanted_;
  const std::string reason = closeReason_;
  const bool overflown = overflown_;
  lock.unlock();
  if (!channel_ || closing_)
    return;
  if (overflown || channel_->queued() + frames.size() > longestQueue) {
    service_.warnings.warn(loop_.now(), "A page that does not take its messages was dropped.");
    closing_ = true;
    channel_->abort();
    return;
  }
  if (!frames.empty())
    channel_->send(std::move(frames));
  if (closeWanted)
    sayClose(CloseCode::kNormal, reason);
}

void WebSocketLink::open(std::shared_ptr<Engine::TransportListener> listener)
{
  listener_ = std::move(listener);
  if (!listener_)
    sayClose(CloseCode::kTryLater, "busy");
}

void WebSocketLink::received(std::string_view bytes)
{
  pinged_ = false;
  if (!closing_ && greeted_)
    deadline_ = loop_.now() + quietTime;
  const auto self = shared_from_this();
  const int failure = codec_.receive(bytes, *this);
  if (failure != 0)
    breakOff(failure, "broke the rules of its protocol");
  else
    countUnfinished();
}

/// A message that has begun has to become whole, and all that have begun must not fill the memory.
void WebSocketLink::countUnfinished()
{
  const std::size_t size = codec_.unfinished();
  service_.unfinished += size - counted_;
  counted_ = size;
  if (size == 0)
    messageDeadline_ = NetworkLoop::TimePoint::max();
  else if (messageDeadline_ == NetworkLoop::TimePoint::max())
    messageDeadline_ = loop_.now() + service_.limits.body +
                       std::chrono::seconds(WebSocketCodec::maximumMessage / service_.limits.bodyRate);
  if (size > fairShare && service_.unfinished > service_.limits.unfinished)
    breakOff(CloseCode::kTooBig, "began a long message while there were too many");
}

void WebSocketLink::breakOff(int code, const char *reason)
{
  if (!channel_ || closing_)
    return;
  service_.warnings.warn(loop_.now(), std::string("A page's connection ") + reason +
                                          " and was closed with code " + std::to_string(code) + ".");
  sayClose(code, "");
  channel_->closeAfterSending();
  tellClosed(false);
}

void WebSocketLink::sayClose(int code, std::string_view reason)
{
  if (!channel_ || std::exchange(closing_, true))
    return;
  deadline_ = loop_.now() + closingTime;
  channel_->send(WebSocketCodec::closeFrame(code, reason));
}

void WebSocketLink::tellClosed(bool goodbye)
{
  if (const auto listener = std::exchange(listener_, nullptr))
    listener->closed(goodbye);
}

void WebSocketLink::gone()
{
  channel_ = nullptr;
  service_.unfinished -= std::exchange(counted_, 0);
  {
    const std::lock_guard<std::mutex> lock(mutex_);
    dead_ = true;
    outbox_ = std::string();
  }
  tellClosed(false);
}

void WebSocketLink::shutDown()
{
  sayClose(CloseCode::kGoingAway, "stopping");
}

void WebSocketLink::expired()
{
  if (!channel_)
    return;
  if (closing_ || pinged_ || !greeted_ || messageDeadline_ <= loop_.now()) {
    channel_->abort();
    deadline_ = messageDeadline_ = NetworkLoop::TimePoint::max();
  } else {
    pinged_ = true;
    deadline_ = loop_.now() + quietTime;
    channel_->send(WebSocketCodec::pingFrame());
  }
}

void WebSocketLink::textMessage(std::string message)
{
  if (!std::exchange(greeted_, true)) {
    codec_.setLimit(WebSocketCodec::maximumMessage);
    if (!closing_)
      deadline_ = loop_.now() + quietTime;
  }
  if (listener_ && !closing_)
    listener_->received(std::move(message));
}

void WebSocketLink::ping(std::string_view payload)
{
  if (channel_ && !closing_ && channel_->queued() < fewBytes)
    channel_->send(WebSocketCodec::pongFrame(payload));
}

void WebSocketLink::pong() {}

void WebSocketLink::close(int code)
{
  if (channel_) {
    sayClose(code == CloseCode::kNone || code == CloseCode::kGoodbye ? CloseCode::kNormal : code, "");
    channel_->closeAfterSending();
  }
  tellClosed(code == CloseCode::kGoodbye);
}

} // namespace Net
} // namespace Wt
