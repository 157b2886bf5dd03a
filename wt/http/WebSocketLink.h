// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_WEB_SOCKET_LINK_H_
#define WT_HTTP_WEB_SOCKET_LINK_H_

#include "http/HttpService.h"
#include "http/WebSocketCodec.h"
#include "session/Transport.h"

#include <algorithm>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>

namespace Wt
{
namespace Net
{

class ByteChannel;

/**
 * A page's open connection: frames on one side, the session's messages on the other. The session's part
 * (send, close) may be called from any thread, all else belongs to the network thread.
 *
 * An open page costs nothing while nothing happens but a ping of two bytes after a quiet minute, by which a
 * peer that vanished is noticed.
 */
class WebSocketLink : public Engine::Transport,
                      public std::enable_shared_from_this<WebSocketLink>,
                      private WebSocketCodec::Handler
{
public:
  static constexpr std::size_t longestQueue = 8 * 1024 * 1024;
  static constexpr std::chrono::seconds quietTime{60};
  static constexpr std::chrono::seconds closingTime{5};
  /// A peer that has so much to read is not answered its pings.
  static constexpr std::size_t fewBytes = 16 * 1024;
  /// What a page may have begun to say while all pages together have begun too much.
  static constexpr std::size_t fairShare = 64 * 1024;

  WebSocketLink(HttpService &service, ByteChannel &channel);
  ~WebSocketLink() override;

  void send(std::string message) override;
  void close(const std::string &reason) override;

  /// To be called once, when the peer has been told that its connection is open. Null refuses it.
  void open(std::shared_ptr<Engine::TransportListener> listener);
  void received(std::string_view bytes);
  /// The connection is gone.
  void gone();
  /// The server stops.
  void shutDown();
  NetworkLoop::TimePoint deadline() const { return std::min(deadline_, messageDeadline_); }
  void expired();
  /// Whether the page has said who it is.
  bool greeted() const { return greeted_; }

private:
  HttpService &service_;
  NetworkLoop &loop_;
  ByteChannel *channel_; ///< null once gone
  std::shared_ptr<Engine::TransportListener> listener_;
  WebSocketCodec codec_;
  NetworkLoop::TimePoint deadline_;
  NetworkLoop::TimePoint messageDeadline_ = NetworkLoop::TimePoint::max(); ///< of a message that has begun
  std::size_t counted_ = 0; ///< this connection's part of the service's unfinished bytes
  bool greeted_ = false;
  bool pinged_ = false;
  bool closing_ = false;

  std::mutex mutex_;
  std::string outbox_; ///< frames
  std::string closeReason_;
  bool closeWanted_ = false;
  bool posted_ = false;
  bool overflown_ = false;
  bool dead_ = false;

  void wake(const std::lock_guard<std::mutex> &);
  void flush();
  void countUnfinished();
  void breakOff(int code, const char *reason);
  void sayClose(int code, std::string_view reason);
  void tellClosed(bool goodbye);

  void textMessage(std::string message) override;
  void ping(std::string_view payload) override;
  void pong() override;
  void close(int code) override;
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_WEB_SOCKET_LINK_H_
