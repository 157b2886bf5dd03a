// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_PASSWORD_DESK_H_
#define ZEL_SIM_SERVER_PASSWORD_DESK_H_

#include "data/Password.h"
#include "server/Request.h"

#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>

namespace zelsim
{

struct World;

/// Where passwords are hashed and compared: a thread beside the server's loop, since each takes some 20 ms.
/// One piece of work for each client at most.
class PasswordDesk
{
public:
  struct Piece {
    std::uint64_t client = 0;
    PasswordWork work;
  };

  PasswordDesk() = default;
  ~PasswordDesk();
  PasswordDesk(const PasswordDesk &) = delete;
  PasswordDesk &operator=(const PasswordDesk &) = delete;

  /// Begins to work. Signals that are blocked by now stay so on the thread. False if it can't.
  bool open();
  /// Becomes readable when a piece is done.
  int fd() const { return done_; }

  void submit(Piece piece);
  /// Drops what waits for a client that is gone.
  void cancel(std::uint64_t client);
  /// The next piece that is done; false if there is none.
  bool take(Piece &piece);

  /// What a request takes before it can be carried out; false if nothing.
  static bool workOf(const World &world, const Request &request, PasswordWork &work);

private:
  void work();

  int done_ = -1; // an eventfd
  std::mutex mutex_;
  std::condition_variable wake_;
  bool closing_ = false;
  std::deque<Piece> waiting_;
  std::deque<Piece> finished_;
  std::thread thread_;
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_PASSWORD_DESK_H_
