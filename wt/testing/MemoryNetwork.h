// SPDX-License-Identifier: MIT
#ifndef WT_TESTING_MEMORY_NETWORK_H_
#define WT_TESTING_MEMORY_NETWORK_H_

#include "http/ByteChannel.h"
#include "http/HttpConnection.h"
#include "http/HttpService.h"
#include "http/NetworkLoop.h"
#include "session/SessionHost.h"

#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace Wt
{
namespace Testing
{

/// A network thread that runs when it is told to, with a clock that stands still.
class ManualLoop : public Net::NetworkLoop
{
public:
  void post(std::function<void()> function) override;
  TimePoint now() const override { return now_; }

  /// Runs what was posted, and what that posts.
  void run();
  void advance(std::chrono::milliseconds time) { now_ += time; }

private:
  std::mutex mutex_;
  std::deque<std::function<void()>> posted_;
  TimePoint now_{std::chrono::hours(1)};
};

/// A peer that takes everything at once, or holds what it is sent until told to take it.
class MemoryChannel : public Net::ByteChannel
{
public:
  void send(std::string bytes) override;
  std::size_t queued() const override { return holding ? held.size() : 0; }
  void setReading(bool reading_) override { reading = reading_; }
  void closeAfterSending() override { closing = true; }
  void abort() override { aborted = true; }

  std::string output; ///< what the peer has taken
  std::string held;
  bool holding = false;
  bool reading = true;
  bool closing = false;
  bool aborted = false;
};

/// Sessions that keep what they are told and say what a test wants. By default messages come back as they
/// are.
class FakeSessions : public Engine::SessionHost
{
public:
  struct ResourceRequest {
    Engine::RequestHead head;
    std::vector<Engine::SpooledFile> files;
    std::uint64_t tooLarge = 0;
    std::shared_ptr<Engine::ResourceResponse> response;
  };

  ~FakeSessions() override;

  std::string bootstrapPage(const Engine::RequestHead &head) override;
  std::shared_ptr<Engine::TransportListener> connected(const Engine::RequestHead &head,
                                                       std::shared_ptr<Engine::Transport> transport) override;
  void resource(Engine::RequestHead head, std::vector<Engine::SpooledFile> files, std::uint64_t tooLarge,
                std::shared_ptr<Engine::ResourceResponse> response) override;
  bool hasResource(const Engine::RequestHead &head) const override;
  void uploadProgress(const Engine::RequestHead &head, std::uint64_t got, std::uint64_t total) override;
  std::size_t sessionCount() const override { return 0; }

  /// Called for each resource request, on the network thread; without it requests are kept in `requests`.
  std::function<void(ResourceRequest)> onResource;
  bool refusing = false;
  bool knowsResources = true; ///< what hasResource() says

  mutable std::mutex mutex; ///< guards what follows while a network thread runs
  std::vector<Engine::RequestHead> pages;
  std::vector<Engine::RequestHead> connections;
  std::vector<std::shared_ptr<Engine::Transport>> transports;
  std::vector<std::string> messages;
  std::vector<ResourceRequest> requests;
  std::vector<std::pair<std::uint64_t, std::uint64_t>> progress;
  int closings = 0;
  int goodbyes = 0;

private:
  class Listener;
};

/// One connection of a server that exists in memory only.
class MemoryConnection
{
public:
  explicit MemoryConnection(const std::string &documentRoot, Net::Peer peer = Net::Peer());
  ~MemoryConnection();

  /// Gives the server bytes, and lets it work.
  void say(std::string_view bytes);
  /// What the server has said since the last call.
  std::string heard();
  /// The peer takes what was held back.
  void takeHeld();
  /// Moves the clock, and tells the connection if its deadline has passed.
  void wait(std::chrono::milliseconds time);
  void hangUp();

  ManualLoop loop;
  FakeSessions sessions;
  Net::HttpService service;
  MemoryChannel channel;
  std::shared_ptr<Net::HttpConnection> connection;

private:
  bool gone_ = false;
};

/// A frame as a browser sends it, masked.
std::string clientFrame(int opcode, std::string_view payload, bool final = true);

/// The request that opens a WebSocket at "/" of that host.
std::string webSocketRequest(const std::string &host, const std::string &origin);

} // namespace Testing
} // namespace Wt

#endif // WT_TESTING_MEMORY_NETWORK_H_
