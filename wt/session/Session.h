// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_SESSION_H_
#define WT_SESSION_SESSION_H_

#include "session/Channel.h"
#include "session/ClientMessage.h"
#include "session/Fiber.h"
#include "session/Page.h"
#include "session/RequestHead.h"
#include "session/ResourceHandler.h"
#include "session/Scheduler.h"
#include "session/SessionConfig.h"
#include "session/TimerSet.h"

#include <atomic>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <thread>
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
 * one thing at a time; a worker runs the fiber while there is something to take. Having the fiber (or, on a
 * thread of one's own, the lock) is the right to touch the application and its widgets. A handler that waits,
 * in waitForEvent(), takes from the queue itself, on top of its own stack. When the session is killed,
 * waiting handlers are unwound by a WException, the application is destroyed on the fiber, and the fiber
 * ends.
 */
class Session : public std::enable_shared_from_this<Session>
{
public:
  struct Origin {
    RequestHead head; ///< of the request that opened the connection
    EntryPoint entryPoint;
    std::string token;
    std::string publicId;
  };

  Session(Scheduler &scheduler, const SessionConfig &config, Origin origin,
          std::function<void(Session &)> ended);
  ~Session();
  Session(const Session &) = delete;
  Session &operator=(const Session &) = delete;

  /// The session that this thread works for, or null. Not inlined: the thread may change between two calls.
  static Session *current() noexcept;
  /// Makes a session this thread's current one, and tells the former one.
  static Session *makeCurrent(Session *session) noexcept;

  const std::string &publicId() const { return origin_.publicId; }
  const std::string &token() const { return origin_.token; }
  const std::string &deploymentPath() const { return origin_.entryPoint.path; }
  const SessionConfig &config() const { return config_; }

  /// Answers a request that no resource takes.
  static void refuse(const std::vector<SpooledFile> &files, ResourceResponse &response);

  /// From any thread

  /// The page said hello on this connection.
  void begin(std::shared_ptr<Transport> transport, std::uint64_t connection, ClientMessage hello);
  void resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen,
              std::string scheme);
  void received(std::uint64_t connection, std::string message);
  void closed(std::uint64_t connection, bool goodbye);
  /// Runs a function within the session, as an event of its own.
  void post(std::function<void()> function);
  void requested(const std::string &resourceId, const std::string &rand, RequestHead head,
                 std::vector<SpooledFile> files, std::uint64_t tooLarge,
                 std::shared_ptr<ResourceResponse> response);
  /// Thread safe.
  bool hasResource(const std::string &id) const;
  void progress(const std::string &resourceId, const std::string &rand, std::uint64_t got,
                std::uint64_t total);
  /// Ends the session as soon as its running handler lets go. `farewell` is a last message to the page.
  void kill(const std::string &farewell = std::string());
  /// True if its browser has been away for longer than the configured time.
  bool expired(Scheduler::TimePoint now) const;
  bool dead() const;

  /// Waits until no other thread has the session; false if it is dead. True at once if this thread has it.
  bool lock(bool &alreadyHeld);
  void unlock();
  bool heldByThisThread() const;

  /// Within the session

  Page &page() { return page_; }
  WApplication *application() const { return application_; }
  void setApplication(WApplication *application) { application_ = application; }

  /// Handles what is left of the current event, renders, and handles the next event, waiting for it. Throws
  /// WException when the session ends.
  void waitForEvent();
  /// The same, but waits for no event: an empty one follows at once.
  void processEvents();
  /// True if the session is a test's, which was told of the dialog and must have ended it.
  bool dialogExecuted(WDialog *dialog);
  /// Delivers the current event: what WApplication::notify does at last.
  void deliver(const WEvent &event);
  /// Sends what has changed, unless that will happen anyway at the end of the event that is being handled.
  void push();

  TimerSet &timers() { return timers_; }

  /// Gives a resource a URL of this session. Adding it again gives it a new URL.
  std::string addResource(const std::string &id, std::shared_ptr<ResourceHandler> handler);
  void removeResource(const std::string &id);

  void redirect(const std::string &url);
  void quit(const std::string &message);
  bool quitting() const { return quitting_; }

  /// For tests whose application lives on their own thread, without a fiber: this thread works for the
  /// session until leaveTest(). Such a session cannot wait for events; `dialogExecuted` is called for each
  /// dialog that would wait.
  void enterTest(std::function<void(WDialog *)> dialogExecuted);
  void leaveTest();

private:
  struct Environment;
  struct ResourceRequest; ///< until it is answered
  struct Work {
    enum Kind { Begin, Attach, Message, Detach, Call, Tick, Request, Progress, FollowUp };
    Kind kind = Call;
    std::uint64_t number = 0; ///< connection, or ticket
    std::uint64_t seen = 0;
    std::string text;
    std::shared_ptr<Transport> transport;
    std::function<void()> call;
    std::shared_ptr<ResourceRequest> request;
    ClientMessage hello;
  };
  struct Resource {
    std::shared_ptr<ResourceHandler> handler;
    std::string rand;
  };
  enum class Holder { Nobody, Worker, Lock };

  /// The queue
  void enqueue(Work work);
  void enqueueTick(TimerSet::Ticket ticket);
  bool full(const Work &work) const;
  void schedule(std::unique_lock<std::mutex> &held);
  void run();
  void release(std::unique_lock<std::mutex> &held);
  Work next();

  /// The life on the fiber
  void live();
  void loop();
  void createApplication();
  void destroyApplication();
  void failed(const char *what);
  void farewell();

  /// Handling
  bool handle(Work &work);
  bool handleAttach(Work &work);
  bool handleBegin(Work &work);
  bool handleMessage(Work &work);
  bool handleDetach(Work &work);
  bool handleProgress(Work &work);
  bool handleEvents(ClientMessage &message);
  bool handleTick(TimerSet::Ticket ticket);
  bool handleRequest(Work &work);
  void violation(const std::string &what);
  void notify(int eventType);
  void drain();
  void dispatchEvent(const ClientMessage::Event &event);
  void applyValues(const ClientMessage &message);
  void dispatchDom(const ClientMessage::Event &event);
  void flush();
  void sendTheme();
  void endIfQuitting();
  const Resource *resource(const std::string &id, const std::string &rand) const;

  Scheduler &scheduler_;
  const SessionConfig &config_;
  Origin origin_;
  std::function<void(Session &)> ended_;

  mutable std::mutex mutex_;
  std::condition_variable released_;
  std::deque<Work> queue_;
  std::size_t queuedMessages_ = 0;
  std::size_t queuedBytes_ = 0;
  std::map<std::string, std::pair<std::uint64_t, std::uint64_t>> progress_; ///< not yet told, by resource
  std::set<std::string> resourceIds_;                                       ///< the keys of `resources_`
  std::string farewell_;
  Scheduler::TimePoint awaySince_;
  std::thread::id holderThread_;
  Holder holder_ = Holder::Nobody;
  bool scheduled_ = false;
  bool killed_ = false;
  bool dead_ = false;
  bool away_ = false;
  std::atomic<WApplication *> application_{nullptr};

  /// What only the holder touches
  std::unique_ptr<Environment> environment_;
  Page page_;
  Channel channel_;
  TimerSet timers_;
  std::map<std::string, Resource> resources_;
  std::deque<std::function<void()>> pending_; ///< what is left of the current event
  std::unique_ptr<Fiber> fiber_;
  std::function<void(WDialog *)> dialogExecuted_;
  std::string redirect_;
  std::string quitMessage_;
  unsigned resumptions_ = 0;
  bool redirecting_ = false;
  bool quitting_ = false;
  bool initialized_ = false;
  bool themeSent_ = false;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_SESSION_H_
