// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_CHANNEL_H_
#define WT_SESSION_CHANNEL_H_

#include "session/Transport.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <memory>
#include <string>

namespace Wt
{
namespace Engine
{

/**
 * The numbered messages between a session and its page, which outlive the connection that carries them. Keeps
 * what the page has not acknowledged. Not thread safe: belongs to the session.
 */
class Channel
{
public:
  /// What to do with a message of the page.
  enum Verdict { Process, Ignore, Violation };

  bool connected() const { return transport_ != nullptr; }
  /// The number of the connection that messages are accepted from; 0 if there is none.
  std::uint64_t connection() const { return connected() ? connection_ : 0; }

  /// A first connection: tells the page its token.
  void open(std::shared_ptr<Transport> transport, std::uint64_t connection, const std::string &token);
  /// A later one: the page has seen updates up to `seen`; the others go out again. False if `seen` cannot be.
  bool resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen);
  void lost() { transport_.reset(); }

  /// The page has sent message `number` and seen updates up to `seen`.
  Verdict received(std::uint64_t number, std::uint64_t seen);
  /// The page has seen updates up to `seen`. False if that cannot be.
  bool acknowledged(std::uint64_t seen);

  /// The number that the next update will have.
  std::uint64_t nextUpdate() const { return sent_ + 1; }
  /// Sends an update; with empty operations a mere answer, if one is due.
  void send(const std::string &operations);
  /// Bytes that the page has not acknowledged.
  std::size_t unacknowledgedBytes() const { return keptBytes_; }

  /// Sends a last message and closes.
  void end(const std::string &message);

private:
  struct Kept {
    std::uint64_t number;
    std::string message;
  };

  std::shared_ptr<Transport> transport_;
  std::deque<Kept> kept_;
  std::size_t keptBytes_ = 0;
  std::uint64_t connection_ = 0;
  std::uint64_t sent_ = 0;             ///< the last update's number
  std::uint64_t received_ = 0;         ///< the page's last message that was processed
  std::uint64_t answered_ = 0;         ///< the last of them that the page knows to be processed
  std::uint64_t onThisConnection_ = 0; ///< the last message number that this connection carried
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_CHANNEL_H_
