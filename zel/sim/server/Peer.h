// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_PEER_H_
#define ZEL_SIM_SERVER_PEER_H_

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace zelsim
{

/// One connection of the server: bytes in, frames out. It never blocks.
///
/// Answers gather in two steps: begin() and end() take them while a turn of the loop works, release() lets
/// them go when the turn's writes are durable. A peer whose answers are not yet sent is not read from
/// (wantsToRead()), so a slow reader holds up nobody but itself, and what it can make the server keep is
/// bounded.
class Peer
{
public:
  using Time = std::chrono::steady_clock::time_point;

  Peer(int fd, std::uint64_t id, bool isControl);
  ~Peer();
  Peer(const Peer &) = delete;
  Peer &operator=(const Peer &) = delete;

  int fd() const { return fd_; }
  std::uint64_t id() const { return id_; }
  bool isControl() const { return isControl_; }

  /// Has the first bytes that are sent carry that file along; -1 for none. The file stays the caller's.
  void attach(int file) { attached_ = file; }

  /// Takes what has arrived. False when the peer has hung up or the connection failed.
  bool read();

  /// The next whole frame's text, valid until the next read() or consume(); false if there is none yet.
  /// `tooLong` is set when its length is out of bounds: the stream can't be followed any further.
  bool nextFrame(std::string_view &text, bool &tooLong) const;
  void consume(std::string_view frame);
  bool hasWholeFrame() const;

  /// An answer of this turn: its JSON is appended to the text that begin() returns. `depends` tells that
  /// it speaks of writes that are not durable yet.
  std::string &begin();
  void end(bool depends);
  /// Puts `json` in the place of all answers of this turn that depend on its writes.
  void replaceDependent(std::string_view json);
  bool hasHeld() const { return !marks_.empty(); }
  /// This turn's answers are to wait so long; no more frames are taken until they are sent.
  void delay(std::chrono::milliseconds time) { delay_ += time; }
  bool isDelayed() const { return delay_.count() > 0; }
  std::chrono::milliseconds takeDelay() { return std::exchange(delay_, {}); }
  /// Lets the turn's answers go from `when` on.
  void release(Time when);
  /// Cuts the last answer of this turn in the middle; the connection ends behind it.
  void cutInTheMiddle();

  bool hasOutput() const { return sent_ < output_.size(); }
  /// When what is to be sent may go.
  Time due() const { return due_; }
  /// Sends what the peer takes. False when the connection failed or has come to its end.
  bool flush(Time now);
  /// Since when the peer has taken nothing of what waits for it.
  Time stalledSince() const { return stalledSince_; }

  /// No more frames are taken; the connection ends when all is sent.
  void finish() { finishing_ = true; }
  bool isFinishing() const { return finishing_; }

  /// A request whose answer takes more than this turn. Nothing behind it is looked at before it is taken up
  /// again.
  void suspend(std::string_view request) { suspended_ = request; }
  bool isSuspended() const { return !suspended_.empty(); }
  std::string resume() { return std::exchange(suspended_, {}); }

  bool wantsToRead() const { return !finishing_ && !hasOutput() && !hasHeld() && !isSuspended(); }

private:
  ssize_t sendSome();

  int fd_;
  std::uint64_t id_;
  bool isControl_;
  int attached_ = -1;
  bool finishing_ = false;
  std::string input_;
  std::size_t consumed_ = 0;
  struct Mark {
    std::size_t begin;
    bool depends;
  };
  std::string suspended_;
  std::string held_; // frames of this turn
  std::vector<Mark> marks_;
  std::string output_;
  std::size_t sent_ = 0;
  std::chrono::milliseconds delay_{};
  Time due_{};
  Time stalledSince_{};
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_PEER_H_
