// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_CONNECTION_H_
#define ZEL_CLIENT_CONNECTION_H_

#include "ServerPage.h"

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

namespace zelclient
{

/// A stream to the store server that carries one frame each way per exchange, within a time limit. The
/// first thing that goes wrong closes it for good.
class Connection
{
public:
  explicit Connection(const std::string &path);
  ~Connection();
  Connection(const Connection &) = delete;
  Connection &operator=(const Connection &) = delete;

  bool isOpen() const { return fd_ >= 0; }
  /// Open, not hung up by the server, and no answer under way that nobody waits for.
  bool isUsable() const;

  /// Sends `first` and `second` as one frame and receives one. `answer` lives until the next exchange.
  bool exchange(std::string_view first, std::string_view second, std::string_view &answer);

  void close();

  /// The page that the server has sent with its first answer; null if it has none.
  const ServerPage *page() const { return page_.get(); }

private:
  using Time = std::chrono::steady_clock::time_point;

  void connectTo(const std::string &path);
  void limitBlocking(int timeoutMs);
  bool send(std::string_view first, std::string_view second, Time deadline);
  bool receive(Time deadline, std::string_view &answer);
  bool wait(short events, Time deadline) const;
  ssize_t receiveSome(char *bytes, std::size_t size, int flags);

  int fd_ = -1;
  int timeoutMs_ = 0; // that the socket's own limits are set to
  bool hasReceived_ = false;
  std::unique_ptr<ServerPage> page_;
  mutable std::optional<std::uint64_t> usableSince_; // the page's count of hang-ups when last looked
  std::vector<char> buffer_;
};

} // namespace zelclient

#endif // ZEL_CLIENT_CONNECTION_H_
