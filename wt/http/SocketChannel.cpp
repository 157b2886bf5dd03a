// SPDX-License-Identifier: MIT
#include "http/SocketChannel.h"

#include "base/Log.h"

#include <algorithm>
#include <array>
#include <boost/asio/post.hpp>
#include <cerrno>
#include <netinet/tcp.h>
#include <openssl/err.h>
#include <openssl/ssl.h>
#include <sys/socket.h>
#include <sys/uio.h>

namespace Wt
{
namespace Net
{

namespace
{

constexpr unsigned char kTlsHandshakeByte = 0x16;
constexpr std::size_t kReadSize = 16 * 1024;
constexpr std::size_t kTlsRecord = 16 * 1024;
constexpr std::size_t kMostPieces = 16;

// A peer that vanished without a word is noticed by the system, at no cost to the page.
constexpr int kKeepAliveIdle = 60;
constexpr int kKeepAliveInterval = 10;
constexpr int kKeepAliveCount = 3;
constexpr int kUnacknowledgedMilliseconds = 40 * 1000;

void setNumber(int socket, int level, int option, int value)
{
  ::setsockopt(socket, level, option, &value, sizeof value);
}

void setOptions(int socket)
{
  setNumber(socket, IPPROTO_TCP, TCP_NODELAY, 1);
  setNumber(socket, SOL_SOCKET, SO_KEEPALIVE, 1);
  setNumber(socket, IPPROTO_TCP, TCP_KEEPIDLE, kKeepAliveIdle);
  setNumber(socket, IPPROTO_TCP, TCP_KEEPINTVL, kKeepAliveInterval);
  setNumber(socket, IPPROTO_TCP, TCP_KEEPCNT, kKeepAliveCount);
  setNumber(socket, IPPROTO_TCP, TCP_USER_TIMEOUT, kUnacknowledgedMilliseconds);
}

bool mustWait()
{
  return errno == EAGAIN || errno == EWOULDBLOCK || errno == EINTR;
}

std::array<char, kReadSize> &readBuffer()
{
  static thread_local std::array<char, kReadSize> buffer;
  return buffer;
}

} // namespace

SocketChannel::SocketChannel(HttpService &service, Socket socket, std::string address, Mode mode,
                             std::shared_ptr<TlsContext> tls)
    : service_(service), socket_(std::move(socket)), address_(std::move(address)), mode_(mode),
      tls_(std::move(tls)), phase_(Phase::Sniffing), deadline_(service.loop.now() + service.limits.head),
      stalled_(TimePoint::max())
{
}

SocketChannel::~SocketChannel()
{
  SSL_free(session_);
}

/// Runs a function of the connection; nothing that it throws may end the network thread.
template <typename Function> void SocketChannel::guarded(Function function)
{
  try {
    function();
  } catch (const std::exception &e) {
    Engine::log(Engine::LogLevel::Error, "http",
                std::string("A connection was closed because of an exception: ") + e.what());
    abort();
  }
}

// Waiting

void SocketChannel::start(std::function<void(SocketChannel &)> closed)
{
  closed_ = std::move(closed);
  boost::system::error_code ec;
  socket_.non_blocking(true, ec);
  setOptions(socket_.native_handle());
  if (mode_ == Mode::Plain)
    openPlain();
  else if (mode_ == Mode::Tls)
    openTls();
  else
    awaitReadable();
}

void SocketChannel::awaitReadable()
{
  if (phase_ == Phase::Closed || awaitsRead_)
    return;
  awaitsRead_ = true;
  socket_.async_wait(Socket::wait_read, [self = shared_from_this()](const boost::system::error_code &ec) {
    self->awaitsRead_ = false;
    if (!ec)
      self->guarded([&self] { self->readable(); });
  });
}

void SocketChannel::awaitWritable()
{
  if (phase_ == Phase::Closed || awaitsWrite_)
    return;
  awaitsWrite_ = true;
  socket_.async_wait(Socket::wait_write, [self = shared_from_this()](const boost::system::error_code &ec) {
    self->awaitsWrite_ = false;
    if (!ec)
      self->guarded([&self] { self->writable(); });
  });
}

void SocketChannel::readable()
{
  if (writeWantsRead_) {
    writeWantsRead_ = false;
    flush();
  }
  proceed(true);
}

void SocketChannel::writable()
{
  if (phase_ == Phase::Handshake)
    handshake();
  else
    flush();
}

void SocketChannel::proceed(bool canRead)
{
  switch (phase_) {
  case Phase::Sniffing:
    sniff();
    break;
  case Phase::Handshake:
    handshake();
    break;
  case Phase::Open:
    if (canRead && reading_)
      readOnce();
    break;
  case Phase::Lingering:
    linger();
    break;
  case Phase::Closed:
    break;
  }
}

SocketChannel::TimePoint SocketChannel::deadline() const
{
  if (phase_ == Phase::Closed)
    return TimePoint::max();
  if (phase_ == Phase::Open && !closing_)
    return std::min(stalled_, connection_->deadline());
  return std::min(stalled_, deadline_);
}

void SocketChannel::expired()
{
  const auto self = shared_from_this();
  const TimePoint now = service_.loop.now();
  if (phase_ != Phase::Open || closing_ || stalled_ <= now)
    abort();
  else
    guarded([this] { connection_->expired(); });
}

void SocketChannel::shutDown()
{
  const auto self = shared_from_this();
  if (connection_ && phase_ == Phase::Open)
    guarded([this] { connection_->shutDown(); });
  else
    abort();
}

// Beginning

/// A TLS client begins with a handshake record, an HTTP request with a letter.
void SocketChannel::sniff()
{
  unsigned char first = 0;
  const ssize_t n = ::recv(socket_.native_handle(), &first, 1, MSG_PEEK);
  if (n == 1)
    first == kTlsHandshakeByte ? openTls() : openPlain();
  else if (n < 0 && mustWait())
    awaitReadable();
  else
    abort();
}

void SocketChannel::openPlain()
{
  begin();
  awaitReadable();
}

void SocketChannel::openTls()
{
  session_ = tls_ ? tls_->newSession(socket_.native_handle()) : nullptr;
  phase_ = Phase::Handshake;
  if (session_)
    handshake();
  else
    abort();
}

void SocketChannel::handshake()
{
  ERR_clear_error();
  switch (tlsOutcome(SSL_do_handshake(session_))) {
  case Transfer::Done:
    begin();
    readOnce();
    break;
  case Transfer::WantRead:
    awaitReadable();
    break;
  case Transfer::WantWrite:
    awaitWritable();
    break;
  case Transfer::Failed:
    abort();
    break;
  }
}

void SocketChannel::begin()
{
  phase_ = Phase::Open;
  Peer peer;
  peer.address = address_;
  peer.secure = session_ != nullptr;
  peer.sharedPort = mode_ == Mode::Either;
  connection_ = std::make_shared<HttpConnection>(service_, *this, std::move(peer));
}

// Reading

void SocketChannel::setReading(bool reading)
{
  if (reading && !std::exchange(reading_, reading) && phase_ == Phase::Open)
    awaitBytes();
  reading_ = reading;
}

void SocketChannel::awaitBytes()
{
  // TLS may hold decrypted bytes that the socket does not announce.
  if (session_ && SSL_pending(session_) > 0)
    boost::asio::post(socket_.get_executor(),
                      [self = shared_from_this()] { self->guarded([&self] { self->proceed(true); }); });
  else
    awaitReadable();
}

void SocketChannel::readOnce()
{
  std::size_t got = 0;
  switch (read(readBuffer().data(), kReadSize, got)) {
  case Transfer::Done:
    connection_->received(std::string_view(readBuffer().data(), got));
    if (phase_ == Phase::Lingering)
      awaitReadable();
    else if (phase_ == Phase::Open && reading_)
      awaitBytes();
    break;
  case Transfer::WantRead:
    awaitReadable();
    break;
  case Transfer::WantWrite:
    awaitWritable();
    awaitReadable();
    break;
  case Transfer::Failed:
    abort();
    break;
  }
}

SocketChannel::Transfer SocketChannel::tlsOutcome(int result)
{
  if (result > 0)
    return Transfer::Done;
  switch (SSL_get_error(session_, result)) {
  case SSL_ERROR_WANT_READ:
    return Transfer::WantRead;
  case SSL_ERROR_WANT_WRITE:
    return Transfer::WantWrite;
  default:
    ERR_clear_error();
    return Transfer::Failed;
  }
}

SocketChannel::Transfer SocketChannel::read(char *bytes, std::size_t size, std::size_t &got)
{
  if (session_) {
    ERR_clear_error();
    const int n = SSL_read(session_, bytes, static_cast<int>(size));
    got = n > 0 ? static_cast<std::size_t>(n) : 0;
    return tlsOutcome(n);
  }
  const ssize_t n = ::recv(socket_.native_handle(), bytes, size, 0);
  got = n > 0 ? static_cast<std::size_t>(n) : 0;
  return n > 0 ? Transfer::Done : n < 0 && mustWait() ? Transfer::WantRead : Transfer::Failed;
}

// Writing

void SocketChannel::send(std::string bytes)
{
  if (phase_ == Phase::Closed || closing_ || bytes.empty())
    return;
  if (queue_.empty())
    stalled_ = service_.loop.now() + stallTime;
  queued_ += bytes.size();
  queue_.push_back(std::move(bytes));
  postFlush();
}

/// Writing waits for the end of the present step, so that what belongs together goes out together.
void SocketChannel::postFlush()
{
  if (std::exchange(flushPosted_, true))
    return;
  boost::asio::post(socket_.get_executor(), [self = shared_from_this()] {
    self->flushPosted_ = false;
    self->guarded([&self] { self->flush(); });
  });
}

void SocketChannel::flush()
{
  if (phase_ != Phase::Open || awaitsWrite_)
    return;
  Transfer outcome = Transfer::Done;
  while (!queue_.empty() && outcome == Transfer::Done) {
    std::size_t put = 0;
    outcome = writeQueue(put);
    tookBytes(put);
  }
  if (outcome == Transfer::Failed) {
    abort();
    return;
  }
  if (outcome == Transfer::WantWrite)
    awaitWritable();
  if (outcome == Transfer::WantRead) {
    writeWantsRead_ = true;
    awaitReadable();
  }
  if (closing_ && queue_.empty())
    endOfSending();
  else if (!closing_ && queued_ < lowWater)
    connection_->sent();
}

void SocketChannel::tookBytes(std::size_t size)
{
  if (size == 0)
    return;
  queued_ -= size;
  offset_ += size;
  while (!queue_.empty() && offset_ >= queue_.front().size()) {
    offset_ -= queue_.front().size();
    queue_.pop_front();
  }
  if (queue_.empty())
    std::deque<std::string>().swap(queue_);
  stalled_ = queue_.empty() ? TimePoint::max() : service_.loop.now() + stallTime;
}

/// Writes the beginning of the queue, small pieces together.
SocketChannel::Transfer SocketChannel::writeQueue(std::size_t &put)
{
  if (session_) {
    if (queue_.size() > 1 && queue_.front().size() - offset_ < kTlsRecord) {
      std::string joined = queue_.front().substr(offset_);
      queue_.pop_front();
      offset_ = 0;
      while (!queue_.empty() && joined.size() + queue_.front().size() <= 2 * kTlsRecord) {
        joined += queue_.front();
        queue_.pop_front();
      }
      queue_.push_front(std::move(joined));
    }
    ERR_clear_error();
    const std::string &front = queue_.front();
    const int n = SSL_write(session_, front.data() + offset_, static_cast<int>(front.size() - offset_));
    put = n > 0 ? static_cast<std::size_t>(n) : 0;
    return tlsOutcome(n);
  }
  std::array<iovec, kMostPieces> pieces = {};
  const std::size_t count = std::min(kMostPieces, queue_.size());
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t skipped = i == 0 ? offset_ : 0;
    pieces[i].iov_base = &queue_[i][skipped];
    pieces[i].iov_len = queue_[i].size() - skipped;
  }
  msghdr message = {};
  message.msg_iov = pieces.data();
  message.msg_iovlen = count;
  const ssize_t n = ::sendmsg(socket_.native_handle(), &message, MSG_NOSIGNAL);
  put = n > 0 ? static_cast<std::size_t>(n) : 0;
  return n > 0 ? Transfer::Done : n < 0 && mustWait() ? Transfer::WantWrite : Transfer::Failed;
}

// Ending

void SocketChannel::closeAfterSending()
{
  if (phase_ != Phase::Open || std::exchange(closing_, true))
    return;
  deadline_ = service_.loop.now() + stallTime;
  postFlush();
}

/// Tells the peer that no more comes, and waits for it: closing at once could destroy what is still under
/// way.
void SocketChannel::endOfSending()
{
  const auto self = shared_from_this();
  connection_->gone();
  if (session_)
    SSL_shutdown(session_);
  ERR_clear_error();
  boost::system::error_code ec;
  socket_.shutdown(Socket::shutdown_send, ec);
  phase_ = Phase::Lingering;
  deadline_ = service_.loop.now() + lingerTime;
  stalled_ = TimePoint::max();
  linger();
}

void SocketChannel::linger()
{
  const ssize_t n = ::recv(socket_.native_handle(), readBuffer().data(), kReadSize, 0);
  if (n > 0 || (n < 0 && mustWait()))
    awaitReadable();
  else
    abort();
}

void SocketChannel::abort()
{
  if (phase_ == Phase::Closed)
    return;
  phase_ = Phase::Closed;
  boost::asio::post(socket_.get_executor(), [self = shared_from_this()] { self->close(); });
}

void SocketChannel::close()
{
  boost::system::error_code ec;
  socket_.close(ec);
  if (connection_)
    connection_->gone();
  queue_.clear();
  queued_ = 0;
  if (const auto closed = std::exchange(closed_, nullptr))
    closed(*this);
}

} // namespace Net
} // namespace Wt
