// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_SERVER_H_
#define ZEL_SIM_SERVER_SERVER_H_

#include "control/Commands.h"
#include "data/Faults.h"
#include "life/World.h"
#include "server/PasswordDesk.h"
#include "server/Peer.h"
#include "server/Publisher.h"
#include "server/Reader.h"
#include "server/Writer.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace zelsim
{

/// The loop: requests of up to `maxClients` connections, control commands, and the world's clock, on one
/// thread. In a turn every peer that is ready gets a bounded piece of work; then everything that was
/// written is committed at once and shown on the page of epochs; then the answers go out.
class Server
{
public:
  struct Options {
    std::string socket;  // where clients connect
    std::string control; // where zelctl connects; empty: nowhere
    unsigned maxClients = 1024;
    /// Told "ready" whenever clients can connect: at the start, and when the switch is back from a restart,
    /// of whose beginning "restarts" tells.
    std::function<void(const char *)> tell;
  };

  Server(World &world, const Commands &commands, Faults &faults, Options options);
  ~Server();
  Server(const Server &) = delete;
  Server &operator=(const Server &) = delete;

  /// Binds the sockets. False and `problem` when that fails, or when a store listens there already.
  bool listen(std::string &problem);

  /// Serves until a quit command, SIGTERM or SIGINT. Returns false if the loop itself fails.
  bool run();

private:
  using Time = Peer::Time;
  struct Entry {
    std::unique_ptr<Peer> peer;
    std::uint32_t interest = 0;
  };

  bool watch(int fd, std::uint64_t id);
  int waitTime() const;
  void turn(int ready);
  void accept(int listener, bool isControl);
  void serve(Peer &peer);
  void answerFrame(Peer &peer, std::string_view text);
  void answerRequest(Peer &peer, std::string_view text, const PasswordWork *prepared);
  void carryOut(const Request &request, Peer &peer, std::string &out, std::vector<Problem> &problems);
  void takeUpSuspended();
  void answerCommand(Peer &peer, std::string_view text);
  void commit();
  void release();
  void flush(Peer &peer);
  void setInterest(Entry &entry);
  void sendDue();
  void tell(const char *news) const;
  bool openDoor(std::string &problem);
  void closeDoor();
  void applyFaults();
  void dropClients();
  void dropStalled();
  void drop(std::uint64_t id);

  World &world_;
  const Commands &commands_;
  Faults &faults_;
  Options options_;
  Reader reader_;
  Publisher publisher_;
  Writer writer_;
  PasswordDesk desk_;

  int epoll_ = -1;
  int listener_ = -1;
  int control_ = -1;
  int signals_ = -1;
  bool isDown_ = false; // as far as it was told: the switch restarts
  unsigned restartsTold_ = 0;
  std::uint64_t lastId_;
  Time now_;
  std::vector<char> events_;
  std::unordered_map<std::uint64_t, Entry> peers_;
  std::vector<std::uint64_t> backlog_; // peers with whole frames left from the last turn
  std::vector<std::uint64_t> touched_; // peers with answers of this turn
  std::vector<std::uint64_t> late_;    // peers whose answers wait for their time
  Time nextStallCheck_;
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_SERVER_H_
