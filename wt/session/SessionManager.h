// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_MANAGER_H_
#define WT_SESSION_SESSION_MANAGER_H_

#include "session/Scheduler.h"
#include "session/SessionConfig.h"
#include "session/SessionHost.h"

#include <condition_variable>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>
#include <vector>

namespace Wt
{
namespace Engine
{

class Session;
class TurnQueue;

/// All sessions of a server: begins them, finds them, ends them. Thread safe.
class SessionManager : public SessionHost, public std::enable_shared_from_this<SessionManager>
{
public:
  /// The scheduler must outlive the manager and all its tasks.
  SessionManager(Scheduler &scheduler, SessionConfig config);
  ~SessionManager() override;

  /// Before the first session.
  void addEntryPoint(EntryPoint entryPoint);
  const SessionConfig &config() const { return config_; }
  Scheduler &scheduler() const { return scheduler_; }

  std::string bootstrapPage(const RequestHead &head) override;
  std::shared_ptr<TransportListener> connected(const RequestHead &head,
                                               std::shared_ptr<Transport> transport) override;
  void resource(RequestHead head, std::vector<SpooledFile> files, std::uint64_t tooLarge,
                std::shared_ptr<ResourceResponse> response) override;
  bool hasResource(const RequestHead &head) const override;
  void uploadProgress(const RequestHead &head, std::uint64_t got, std::uint64_t total) override;
  std::size_t sessionCount() const override;

  /// Runs a function within the session of that public name; nothing happens if there is none.
  void post(const std::string &publicId, std::function<void()> function);

  /// Ends the sessions whose browser has been away for too long. True while sessions remain.
  bool expireSessions();

  /// Ends all sessions and refuses new ones. Returns when every application object is destroyed; the
  /// scheduler must be running, on other threads than the caller's.
  void stop();
  /// The same without waiting.
  void killAll();

private:
  friend class Session;
  class Connection;

  std::vector<std::shared_ptr<Session>> all() const;
  std::shared_ptr<Session> find(const std::string &publicId) const;
  std::shared_ptr<Session> findByToken(const std::string &token) const;
  /// Null, with the reason for the page, if no session can be had.
  std::shared_ptr<Session> begin(const RequestHead &head, std::string &refusal);
  bool tooManyFrom(const std::string &address);
  bool makeRoom(const std::string &address);
  std::shared_ptr<Session> sessionOf(const RequestHead &head) const;
  void ended(Session &session);
  const EntryPoint *entryPoint(const std::string &path) const;

  Scheduler &scheduler_;
  const std::shared_ptr<TurnQueue> turns_;
  SessionConfig config_;
  std::vector<EntryPoint> entryPoints_;
  mutable std::mutex mutex_;
  std::condition_variable allEnded_;
  std::unordered_map<std::string, std::shared_ptr<Session>> byPublicId_;
  std::unordered_map<std::string, Session *> byToken_;
  std::map<std::string, std::deque<Scheduler::TimePoint>> births_; ///< recent ones, by address
  std::uint64_t lastNumber_ = 0;                                   ///< of a session
  bool stopping_ = false;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_MANAGER_H_
