// SPDX-License-Identifier: MIT
#include "Connection.h"

#include "ClientOptions.h"
#include "Frame.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/uio.h>
#include <sys/un.h>
#include <unistd.h>

namespace zelclient
{

namespace
{

constexpr std::size_t kFirstBuffer = 4096;
// A buffer that a long answer has made larger than this is given back afterwards.
constexpr std::size_t kKeptBuffer = 256 * 1024;

std::chrono::milliseconds left(std::chrono::steady_clock::time_point deadline)
{
  return std::chrono::ceil<std::chrono::milliseconds>(deadline - std::chrono::steady_clock::now());
}

} // namespace

Connection::Connection(const std::string &path)
{
  connectTo(path);
  if (isOpen())
    buffer_.resize(kFirstBuffer);
}

Connection::~Connection()
{
  close();
}

void Connection::close()
{
  if (fd_ >= 0)
    ::close(fd_);
  fd_ = -1;
}

void Connection::connectTo(const std::string &path)
{
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (path.size() >= sizeof address.sun_path)
    return;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  fd_ = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  if (fd_ < 0)
    return;
  // The limit covers the connecting as well: it blocks while the server's queue is full.
  limitBlocking(requestTimeoutMs());
  if (::connect(fd_, reinterpret_cast<const sockaddr *>(&address), sizeof address) != 0)
    close();
}

void Connection::limitBlocking(int timeoutMs)
{
  if (timeoutMs == timeoutMs_)
    return;
  timeval limit{};
  limit.tv_sec = timeoutMs / 1000;
  limit.tv_usec = timeoutMs % 1000 * 1000;
  ::setsockopt(fd_, SOL_SOCKET, SO_RCVTIMEO, &limit, sizeof limit);
  ::setsockopt(fd_, SOL_SOCKET, SO_SNDTIMEO, &limit, sizeof limit);
  timeoutMs_ = timeoutMs;
}

bool Connection::isUsable() const
{
  if (fd_ < 0)
    return false;
  const std::uint64_t hangUps = page_ ? page_->hangUps() : 0;
  if (page_ && usableSince_ == hangUps && page_->isKept())
    return true;
  char byte;
  ssize_t got = ::recv(fd_, &byte, 1, MSG_PEEK | MSG_DONTWAIT);
  if (got >= 0 || (errno != EAGAIN && errno != EWOULDBLOCK && errno != EINTR))
    return false;
  if (page_)
    usableSince_ = hangUps;
  return true;
}

bool Connection::exchange(std::string_view first, std::string_view second, std::string_view &answer)
{
  if (fd_ < 0 || first.size() + second.size() > zelwire::kMaxFrame)
    return false;
  int timeoutMs = requestTimeoutMs();
  limitBlocking(timeoutMs);
  Time deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
  if (buffer_.size() > kKeptBuffer) {
    buffer_.resize(kFirstBuffer);
    buffer_.shrink_to_fit();
  }
  if (send(first, second, deadline) && receive(deadline, answer))
    return true;
  close();
  return false;
}

bool Connection::wait(short events, Time deadline) const
{
  for (;;) {
    auto time = left(deadline);
    if (time.count() <= 0)
      return false;
    pollfd waiting{fd_, events, 0};
    int ready = ::poll(&waiting, 1, static_cast<int>(time.count()));
    if (ready > 0)
      return true;
    if (ready == 0 || errno != EINTR)
      return false;
  }
}

bool Connection::send(std::string_view first, std::string_view second, Time deadline)
{
  unsigned char header[zelwire::kHeaderSize];
  zelwire::putLength(header, first.size() + second.size());
  iovec parts[] = {{header, sizeof header},
                   {const_cast<char *>(first.data()), first.size()},
                   {const_cast<char *>(second.data()), second.size()}};
  msghdr message{};
  message.msg_iov = parts;
  message.msg_iovlen = 3;
  for (;;) {
    // Never blocks by itself: a server that reads a byte now and then must not hold us past the deadline.
    ssize_t sent = ::sendmsg(fd_, &message, MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent < 0) {
      if (errno == EINTR || ((errno == EAGAIN || errno == EWOULDBLOCK) && wait(POLLOUT, deadline)))
        continue;
      return false;
    }
    std::size_t done = static_cast<std::size_t>(sent);
    while (message.msg_iovlen > 0 && done >= message.msg_iov->iov_len) {
      done -= message.msg_iov->iov_len;
      ++message.msg_iov;
      --message.msg_iovlen;
    }
    if (message.msg_iovlen == 0)
      return true;
    message.msg_iov->iov_base = static_cast<char *>(message.msg_iov->iov_base) + done;
    message.msg_iov->iov_len -= done;
  }
}

// With the first bytes of a connection a server may send the file of its page.
ssize_t Connection::receiveSome(char *bytes, std::size_t size, int flags)
{
  if (hasReceived_)
    return ::recv(fd_, bytes, size, flags);
  iovec part{bytes, size};
  alignas(cmsghdr) char control[CMSG_SPACE(sizeof(int))];
  msghdr message{};
  message.msg_iov = &part;
  message.msg_iovlen = 1;
  message.msg_control = control;
  // Not the whole buffer: its padding would have room for a second file, and nobody would close it.
  message.msg_controllen = CMSG_LEN(sizeof(int));
  ssize_t got = ::recvmsg(fd_, &message, flags | MSG_CMSG_CLOEXEC);
  if (got <= 0)
    return got;
  hasReceived_ = true;
  const cmsghdr *header = CMSG_FIRSTHDR(&message);
  if (header && header->cmsg_level == SOL_SOCKET && header->cmsg_type == SCM_RIGHTS &&
      header->cmsg_len == CMSG_LEN(sizeof(int))) {
    int file;
    std::memcpy(&file, CMSG_DATA(header), sizeof file);
    page_ = ServerPage::open(file);
    ::close(file);
  }
  return got;
}

bool Connection::receive(Time deadline, std::string_view &answer)
{
  std::size_t have = 0;
  std::size_t wanted = zelwire::kHeaderSize;
  bool headerRead = false;
  // The first wait is the socket's own (one system call); what comes in pieces is waited for by poll.
  int flags = 0;
  while (have < wanted) {
    ssize_t got = receiveSome(buffer_.data() + have, buffer_.size() - have, flags);
    if (got < 0) {
      if (errno == EINTR && left(deadline).count() > 0)
        continue;
      if (flags != 0 && (errno == EAGAIN || errno == EWOULDBLOCK) && wait(POLLIN, deadline))
        continue;
      return false;
    }
    if (got == 0)
      return false;
    have += static_cast<std::size_t>(got);
    flags = MSG_DONTWAIT;
    if (!headerRead && have >= zelwire::kHeaderSize) {
      std::size_t length = zelwire::getLength(reinterpret_cast<const unsigned char *>(buffer_.data()));
      if (length == 0 || length > zelwire::kMaxFrame)
        return false;
      headerRead = true;
      wanted += length;
    }
    // Grows with what has come, not with what a header promises.
    if (have == buffer_.size() && have < wanted)
      buffer_.resize(std::min(wanted, buffer_.size() * 2));
  }
  if (have > wanted)
    return false;
  answer = std::string_view(buffer_.data() + zelwire::kHeaderSize, wanted - zelwire::kHeaderSize);
  return true;
}

} // namespace zelclient
