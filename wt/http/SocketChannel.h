// SPDX-License-Identifier: MIT
#ifndef WT_HTTP_SOCKET_CHANNEL_H_
#define WT_HTTP_SOCKET_CHANNEL_H_

#include "http/ByteChannel.h"
#include "http/HttpConnection.h"
#include "http/TlsContext.h"

#include <boost/asio/ip/tcp.hpp>
#include <chrono>
#include <deque>
#include <functional>
#include <memory>
#include <string>

namespace Wt
{
namespace Net
{

/**
 * One accepted socket, plain or TLS, with its connection. It holds no buffers while nothing happens: the
 * reading buffer is one for the whole thread, and what waits to be written was handed over by the connection.
 */
class SocketChannel : public ByteChannel, public std::enable_shared_from_this<SocketChannel>
{
public:
  using TimePoint = NetworkLoop::TimePoint;
  using Socket = boost::asio::ip::tcp::socket;

  enum class Mode {
    Plain,
    Tls,
    Either ///< decided by the first byte
  };

  static constexpr std::size_t lowWater = 64 * 1024;
  static constexpr std::chrono::seconds stallTime{30}; ///< a peer must take something in that time
  static constexpr std::chrono::seconds lingerTime{3}; ///< and close when it was told that no more comes

  SocketChannel(HttpService &service, Socket socket, std::string address, Mode mode,
                std::shared_ptr<TlsContext> tls);
  ~SocketChannel() override;

  /// Begins to listen to the peer. `closed` is called when all is over.
  void start(std::function<void(SocketChannel &)> closed);
  const std::string &address() const { return address_; }
  /// Whether it belongs to a page of a session.
  bool isKnown() const { return connection_ && phase_ == Phase::Open && connection_->isKnown(); }
  /// Whether it is open and waits for a request.
  bool isIdle() const { return connection_ && connection_->idle(); }
  /// When expired() is to be called.
  TimePoint deadline() const;
  void expired();
  /// The server stops.
  void shutDown();

  void send(std::string bytes) override;
  std::size_t queued() const override { return queued_; }
  void setReading(bool reading) override;
  void closeAfterSending() override;
  void abort() override;

private:
  enum class Phase { Sniffing, Handshake, Open, Lingering, Closed };
  enum class Transfer { Done, WantRead, WantWrite, Failed };

  HttpService &service_;
  Socket socket_;
  std::string address_;
  Mode mode_;
  std::shared_ptr<TlsContext> tls_;
  SSL *session_ = nullptr;
  Phase phase_;
  std::shared_ptr<HttpConnection> connection_;
  std::function<void(SocketChannel &)> closed_;
  TimePoint deadline_;
  TimePoint stalled_;

  std::deque<std::string> queue_;
  std::size_t offset_ = 0; ///< of the first in the queue
  std::size_t queued_ = 0;
  bool reading_ = true;
  bool closing_ = false;
  bool flushPosted_ = false;
  bool awaitsRead_ = false;
  bool awaitsWrite_ = false;
  bool writeWantsRead_ = false;

  void awaitBytes();
  void awaitReadable();
  void awaitWritable();
  void readable();
  void writable();
  void proceed(bool canRead);
  void sniff();
  void openPlain();
  void openTls();
  void handshake();
  void begin();
  void readOnce();
  void linger();
  void postFlush();
  void flush();
  Transfer read(char *bytes, std::size_t size, std::size_t &got);
  Transfer write(const char *bytes, std::size_t size, std::size_t &put);
  Transfer writeQueue(std::size_t &put);
  Transfer tlsOutcome(int result);
  void tookBytes(std::size_t size);
  void endOfSending();
  void close();
  template <typename Function> void guarded(Function function);
};

} // namespace Net
} // namespace Wt

#endif // WT_HTTP_SOCKET_CHANNEL_H_
