// SPDX-License-Identifier: MIT
#include "testing/MemoryNetwork.h"

#include <cstdio>
#include <utility>

namespace Wt
{
namespace Testing
{

void ManualLoop::post(std::function<void()> function)
{
  const std::lock_guard<std::mutex> lock(mutex_);
  posted_.push_back(std::move(function));
}

void ManualLoop::run()
{
  for (;;) {
    std::function<void()> next;
    {
      const std::lock_guard<std::mutex> lock(mutex_);
      if (posted_.empty())
        return;
      next = std::move(posted_.front());
      posted_.pop_front();
    }
    next();
  }
}

void MemoryChannel::send(std::string bytes)
{
  if (!closing && !aborted)
    (holding ? held : output) += bytes;
}

class FakeSessions::Listener : public Engine::TransportListener
{
public:
  Listener(FakeSessions &sessions, std::shared_ptr<Engine::Transport> transport)
      : sessions_(sessions), transport_(std::move(transport))
  {
  }

  void received(std::string message) override
  {
    {
      const std::lock_guard<std::mutex> lock(sessions_.mutex);
      sessions_.messages.push_back(message);
    }
    transport_->send(std::move(message));
  }

  void closed(bool goodbye) override
  {
    const std::lock_guard<std::mutex> lock(sessions_.mutex);
    ++sessions_.closings;
    sessions_.goodbyes += goodbye;
    transport_.reset();
  }

private:
  FakeSessions &sessions_;
  std::shared_ptr<Engine::Transport> transport_;
};

FakeSessions::~FakeSessions()
{
  for (const ResourceRequest &request : requests)
    for (const Engine::SpooledFile &file : request.files)
      std::remove(file.spoolPath.c_str());
}

std::string FakeSessions::bootstrapPage(const Engine::RequestHead &head)
{
  const std::lock_guard<std::mutex> lock(mutex);
  pages.push_back(head);
  return "<!DOCTYPE html><title>page</title>";
}

std::shared_ptr<Engine::TransportListener>
FakeSessions::connected(const Engine::RequestHead &head, std::shared_ptr<Engine::Transport> transport)
{
  const std::lock_guard<std::mutex> lock(mutex);
  connections.push_back(head);
  if (refusing)
    return nullptr;
  transports.push_back(transport);
  return std::make_shared<Listener>(*this, std::move(transport));
}

void FakeSessions::resource(Engine::RequestHead head, std::vector<Engine::SpooledFile> files,
                            std::uint64_t tooLarge, std::shared_ptr<Engine::ResourceResponse> response)
{
  ResourceRequest request{std::move(head), std::move(files), tooLarge, std::move(response)};
  if (onResource) {
    onResource(std::move(request));
    return;
  }
  const std::lock_guard<std::mutex> lock(mutex);
  requests.push_back(std::move(request));
}

bool FakeSessions::hasResource(const Engine::RequestHead &) const
{
  return knowsResources;
}

void FakeSessions::uploadProgress(const Engine::RequestHead &, std::uint64_t got, std::uint64_t total)
{
  const std::lock_guard<std::mutex> lock(mutex);
  progress.emplace_back(got, total);
}

MemoryConnection::MemoryConnection(const std::string &documentRoot, Net::Peer peer)
    : service{loop,
              sessions,
              Net::Router(),
              Net::StaticFiles(documentRoot, true),
              Net::ScriptAsset(true),
              Net::AccessLog("-"),
              {},
              {128 * 1024},
              false,
              false,
              {},
              {},
              {},
              0}
{
  service.names.add("switch");
  service.router.addEntryPoint("/");
  connection = std::make_shared<Net::HttpConnection>(service, channel, std::move(peer));
}

MemoryConnection::~MemoryConnection()
{
  hangUp();
  loop.run();
}

void MemoryConnection::say(std::string_view bytes)
{
  connection->received(bytes);
  loop.run();
}

std::string MemoryConnection::heard()
{
  return std::exchange(channel.output, std::string());
}

void MemoryConnection::takeHeld()
{
  channel.output += std::exchange(channel.held, std::string());
  if (!gone_)
    connection->sent();
  loop.run();
}

void MemoryConnection::wait(std::chrono::milliseconds time)
{
  loop.advance(time);
  if (!gone_ && connection->deadline() <= loop.now())
    connection->expired();
  loop.run();
}

void MemoryConnection::hangUp()
{
  if (!std::exchange(gone_, true))
    connection->gone();
}

std::string clientFrame(int opcode, std::string_view payload, bool final)
{
  static const char mask[4] = {'\x12', '\x34', '\x56', '\x78'};
  std::string frame(1, static_cast<char>((final ? 0x80 : 0) | opcode));
  if (payload.size() <= 125) {
    frame += static_cast<char>(0x80 | static_cast<int>(payload.size()));
  } else {
    const int bytes = payload.size() <= 0xffff ? 2 : 8;
    frame += static_cast<char>(0x80 | (bytes == 2 ? 126 : 127));
    for (int i = bytes - 1; i >= 0; --i)
      frame += static_cast<char>(static_cast<std::uint64_t>(payload.size()) >> (8 * i));
  }
  frame.append(mask, sizeof mask);
  for (std::size_t i = 0; i < payload.size(); ++i)
    frame += static_cast<char>(payload[i] ^ mask[i % 4]);
  return frame;
}

std::string webSocketRequest(const std::string &host, const std::string &origin)
{
  return "GET /?request=ws HTTP/1.1\r\nHost: " + host +
         "\r\nConnection: keep-alive, Upgrade\r\nUpgrade: websocket\r\n" +
         (origin.empty() ? "" : "Origin: " + origin + "\r\n") +
         "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: dGhlIHNhbXBsZSBub25jZQ==\r\n\r\n";
}

} // namespace Testing
} // namespace Wt
