// SPDX-License-Identifier: MIT
#include "session/Channel.h"

#include "dom/JsonText.h"

namespace Wt
{
namespace Engine
{

void Channel::open(std::shared_ptr<Transport> transport, std::uint64_t connection, const std::string &token)
{
  transport_ = std::move(transport);
  connection_ = connection;
  std::string message = "{\"token\":";
  Dom::appendJsonString(message, token);
  message += ",\"n\":0}";
  transport_->send(std::move(message));
}

bool Channel::resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen)
{
  if (!acknowledged(seen))
    return false;
  if (transport_)
    transport_->close("replaced");
  transport_ = std::move(transport);
  connection_ = connection;
  onThisConnection_ = 0;
  answered_ = received_;
  std::string message = "{\"resumed\":";
  Dom::appendJsonNumber(message, static_cast<long long>(received_));
  message += '}';
  transport_->send(std::move(message));
  for (const Kept &kept : kept_)
    transport_->send(kept.message);
  return true;
}

Channel::Verdict Channel::received(std::uint64_t number, std::uint64_t seen)
{
  if (number <= onThisConnection_ || number > received_ + 1 || !acknowledged(seen))
    return Violation;
  onThisConnection_ = number;
  if (number <= received_)
    return Ignore;
  received_ = number;
  return Process;
}

bool Channel::acknowledged(std::uint64_t seen)
{
  if (seen > sent_)
    return false;
  while (!kept_.empty() && kept_.front().number <= seen) {
    keptBytes_ -= kept_.front().message.size();
    kept_.pop_front();
  }
  return true;
}

void Channel::send(const std::string &operations)
{
  if (operations.empty() && answered_ == received_)
    return;
  std::string message = "{";
  if (!operations.empty()) {
    message += "\"n\":";
    Dom::appendJsonNumber(message, static_cast<long long>(++sent_));
    message += ',';
  }
  message += "\"a\":";
  Dom::appendJsonNumber(message, static_cast<long long>(received_));
  if (!operations.empty()) {
    message += ",\"o\":";
    message += operations;
  }
  message += '}';
  answered_ = received_;
  if (!operations.empty()) {
    keptBytes_ += message.size();
    kept_.push_back(Kept{sent_, message});
  }
  if (transport_)
    transport_->send(std::move(message));
}

void Channel::end(const std::string &message)
{
  if (!transport_)
    return;
  if (!message.empty())
    transport_->send(message);
  transport_->close("end");
  transport_.reset();
}

} // namespace Engine
} // namespace Wt
