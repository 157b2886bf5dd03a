// SPDX-License-Identifier: MIT
#ifndef TESTS_UNIT_ZEL_RAW_CLIENT_H_
#define TESTS_UNIT_ZEL_RAW_CLIENT_H_

#include "Frame.h"
#include "server/Listener.h"

#include <poll.h>
#include <string>
#include <string_view>
#include <sys/socket.h>
#include <unistd.h>

// A connection to a store on which a test sends bytes as it likes.
class RawClient
{
public:
  explicit RawClient(const std::string &path) : fd_(zelsim::connectTo(path)) {}
  ~RawClient()
  {
    if (fd_ >= 0)
      ::close(fd_);
  }
  RawClient(const RawClient &) = delete;
  RawClient &operator=(const RawClient &) = delete;
  RawClient(RawClient &&other) noexcept : fd_(other.fd_) { other.fd_ = -1; }

  int fd() const { return fd_; }

  static std::string frame(std::string_view text)
  {
    std::string bytes(zelwire::kHeaderSize, '\0');
    zelwire::putLength(reinterpret_cast<unsigned char *>(&bytes[0]), text.size());
    return bytes.append(text);
  }

  void sendRaw(std::string_view bytes) { ::send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL); }
  void send(std::string_view text) { sendRaw(frame(text)); }

  // The text of the next answer; empty when the server hangs up or says nothing for ten seconds.
  std::string receive()
  {
    std::string header(zelwire::kHeaderSize, '\0');
    if (!receiveAll(header))
      return {};
    std::string text(zelwire::getLength(reinterpret_cast<const unsigned char *>(header.data())), '\0');
    return receiveAll(text) ? text : std::string();
  }

  std::string ask(std::string_view text)
  {
    send(text);
    return receive();
  }

private:
  bool receiveAll(std::string &bytes)
  {
    for (std::size_t have = 0; have < bytes.size();) {
      pollfd waiting{fd_, POLLIN, 0};
      ssize_t got = ::poll(&waiting, 1, 10000) == 1 ? ::recv(fd_, &bytes[have], bytes.size() - have, 0) : 0;
      if (got <= 0)
        return false;
      have += static_cast<std::size_t>(got);
    }
    return true;
  }

  int fd_;
};

#endif // TESTS_UNIT_ZEL_RAW_CLIENT_H_
