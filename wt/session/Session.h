// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_H_
#define WT_SESSION_SESSION_H_

#include "session/Channel.h"
#include "session/EventParts.h"
#include "session/Fiber.h"
#include "session/Page.h"
#include "session/PageEvents.h"
#include "session/RequestHead.h"
#include "session/ResourceTable.h"
#include "session/SessionConfig.h"
#include "session/SessionQueue.h"
#include "session/TimerSet.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{

class WApplication;
class WDialog;
class WEvent;

namespace Engine
{

/**
 * One browser page and its application object.
 *
 * Whatever happens to a session is put into its queue, from any thread, and taken out on the session's fiber,
 * one thing at a time; a worker runs the fiber while there is something to take, and lets go of it when its
 * turn is over. SessionQueue says who has the session when. A handler that waits, in waitForEvent(), takes
 * from the queue itself, on top of its own stack. When the session is killed, waiting handlers are unwound by
 * a WException, the application is destroyed on the fiber, and the fiber ends.
 */
class Session : public std::enable_shared_from_this<Session>
{
public:
  struct Origin {
    RequestHead head; ///< of the request that opened the connection
    EntryPoint entryPoint;
    std::string token;
    std::string publicId;
    std::uint64_t number = 0; ///< sessions are numbered as they are made
  };

  Session(std::shared_ptr<TurnQueue> turns, const SessionConfig &config, Origin origin,
          std::function<void(Session &)> ended);
  virtual ~Session();
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;

  /// The session that this thread works for, or null. Not inlined: the thread may change between two calls.
  static Session *current() noexcept;
  /// Makes a session this thread's current one, and tells the former one.
  static Session *makeCurrent(Session *session) noexcept;

  const std::string &publicId() const { return origin_.publicId; }
  const std::string &token() const { return origin_.token; }
  const std::string &deploymentPath() const { return origin_.entryPoint.path; }
  const std::string &clientAddress() const { return origin_.head.clientAddress; }
  const SessionConfig &config() const { return config_; }

  /// From any thread

  /// The page said hello on this connection.
  void begin(std::shared_ptr<Transport> transport, std::uint64_t connection, ClientMessage hello);
  void resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen,
              std::string scheme);
  void received(std::uint64_t connection, std::string message);
  void closed(std::uint64_t connection, bool goodbye);
  /// Runs a function within the session, as an event of its own.
  void post(std::function<void()> function);
  /// True if the session has that resource, and `secret` is the one of its URLs.
  bool hasResource(const std::string &id, const std::string &secret) const;
  void requested(std::shared_ptr<ResourceRequest> request);
  void progress(const std::string &resourceId, std::uint64_t got, std::uint64_t total);
  /// Ends the session as soon as its running handler lets go. `farewell` is a last message to the page.
  void kill(const std::string &farewell = std::string());
  /// True if its browser has been away for longer than the configured time.
  bool expired(Scheduler::TimePoint now) const;
  bool killed() const { return queue_.killed(); }
  std::uint64_t number() const { return origin_.number; }
  /// True once the application has shown more than dialogs; until then the page is at the door.
  bool entered() const { return entered_; }
  /// True while the page has no connection.
  bool away() const { return awaySince_ != 0; }

  /// Waits until no other thread has the session; false if it is dead. True at once if this thread has it.
  bool lock(bool &alreadyHeld) { return queue_.lock(alreadyHeld); }
  void unlock() { queue_.unlock(); }

  /// Within the session

  Page &page() { return page_; }
  WApplication *application() const { return application_; }
  void setApplication(WApplication *application) { application_ = application; }

  /// Handles what is left of the current event, renders, and handles the next event, waiting for it. Throws
  /// WException when the session ends.
  void waitForEvent();
  /// The same, but waits for no event: an empty one follows at once.
  void processEvents();
  /// Handles events as long as a dialog that somebody waits for runs.
  virtual void waitForDialog(WDialog &dialog, const std::function<bool()> &runs);
  /// Delivers the current event: what WApplication::notify does at last.
  void deliver(const WEvent &event);
  /// Sends what has changed, unless that will happen anyway at the end of the event that is being handled.
  void push();

  TimerSet &timers() { return timers_; }

  /// A URL of the resource in this session. Adding it again gives another one; the former ones stay good.
  std::string addResource(const std::string &id, std::shared_ptr<ResourceHandler> handler);
  void removeResource(const std::string &id) { resources_.remove(id); }

  void redirect(const std::string &url);
  void quit(const std::string &message);
  bool quitting() const { return quitting_; }

private:
  struct Environment;

  void enqueue(SessionWork work);
  void enqueueTick(TimerSet::Ticket ticket, bool gathered);
  /// A function that puts that kind of work into the queue, if the session still lives then.
  Scheduler::Task enqueuing(SessionWork::Kind kind);
  void runTurn();
  SessionWork next();

  /// The life on the fiber
  void live();
  void createApplication();
  void destroyApplication();
  void failed(const char *what);

  /// Handling
  bool handle(SessionWork &work);
  bool handleAttach(SessionWork &work);
  bool handleBegin(SessionWork &work);
  bool handleMessage(SessionWork &work);
  bool handleDetach(SessionWork &work);
  bool handleProgress(SessionWork &work);
  bool handleEvents(ClientMessage &message);
  bool handleAlarm();
  bool handleTick(SessionWork &work);
  bool handleBeat();
  bool handleRequest(SessionWork &work);
  void setSeen(bool seen);
  bool violation(const std::string &what);
  void notify(int eventType);
  void flush();
  void noteEntrance();
  void sendTheme();
  void endIfQuitting();

  const std::shared_ptr<TurnQueue> turns_;
  Scheduler &scheduler_;
  const SessionConfig &config_;
  const Origin origin_;
  const std::function<void(Session &)> ended_;

  /// What any thread may touch
  SessionQueue queue_;
  ResourceTable resources_;
  std::atomic<WApplication *> application_{nullptr};
  std::atomic<Scheduler::TimePoint::rep> awaySince_{0}; ///< 0 while the page is there
  std::atomic<bool> entered_{false};

  /// What only the holder touches
  std::unique_ptr<Environment> environment_;
  Page page_;
  PageEvents pageEvents_;
  Channel channel_;
  TimerSet timers_;
  EventParts parts_; ///< what is left of the current event
  std::unique_ptr<Fiber> fiber_;
  std::string redirect_;
  std::string quitMessage_;
  Scheduler::TimerId beat_ = 0; ///< of the ticks while nobody sees the page; 0 while somebody does
  unsigned resumptions_ = 0;
  bool redirecting_ = false;
  bool quitting_ = false;
  bool initialized_ = false;
  bool themeSent_ = false;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_H_
