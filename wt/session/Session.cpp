// SPDX-License-Identifier: MIT
#include "session/Session.h"

#include "base/EventAccess.h"
#include "base/Log.h"
#include "base/OwnTexts.h"
#include "dom/JsonText.h"
#include "session/Random.h"
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WEnvironment>
#include <Wt/WException>
#include <Wt/WTimer>

namespace Wt
{
namespace Engine
{

namespace
{

/// While nobody sees a page its repeating timers tick together, so often.
const std::chrono::seconds kBeat(30);

const char kFailureText[] = "An internal error has ended this session. Reload the page to begin a new one.";

thread_local Session *currentSession = nullptr;

/// Makes a session the thread's current one for a while.
class CurrentScope
{
public:
  explicit CurrentScope(Session *session) : former_(Session::makeCurrent(session)) {}
  ~CurrentScope() { Session::makeCurrent(former_); }
  CurrentScope(const CurrentScope &) = delete;
  CurrentScope &operator=(const CurrentScope &) = delete;

private:
  Session *former_;
};

} // namespace

struct Session::Environment : public WEnvironment {
};

Session::Session(std::shared_ptr<TurnQueue> turns, const SessionConfig &config, Origin origin,
                 std::function<void(Session &)> ended)
    : turns_(std::move(turns)), scheduler_(turns_->scheduler()), config_(config), origin_(std::move(origin)),
      ended_(std::move(ended)),
      queue_(turns_, config,
             [this]() -> Scheduler::Task { return [self = shared_from_this()] { self->runTurn(); }; }),
      pageEvents_(scheduler_, page_, origin_.publicId),
      timers_(scheduler_, [this] { return enqueuing(SessionWork::Alarm); })
{
}

Session::~Session() = default;

__attribute__((noinline)) Session *Session::current() noexcept
{
  return currentSession;
}

__attribute__((noinline)) Session *Session::makeCurrent(Session *session) noexcept
{
  Session *former = currentSession;
  currentSession = session;
  return former;
}

// --- The queue
// -------------------------------------------------------------------------------------------------

void Session::enqueue(SessionWork work)
{
  switch (queue_.push(work)) {
  case SessionQueue::Pushed::Yes:
    break;
  case SessionQueue::Pushed::Killed:
    work.refuse();
    break;
  case SessionQueue::Pushed::Full:
    log(LogLevel::Warning, "session", publicId() + " ended: its page sends more than it handles");
    kill(kReloadMessage);
    break;
  }
}

void Session::enqueueTick(TimerSet::Ticket ticket, bool gathered)
{
  SessionWork work;
  work.kind = SessionWork::Tick;
  work.number = ticket;
  work.gathered = gathered;
  enqueue(std::move(work));
}

Scheduler::Task Session::enqueuing(SessionWork::Kind kind)
{
  return [weak = weak_from_this(), kind] {
    SessionWork work;
    work.kind = kind;
    if (const auto self = weak.lock())
      self->enqueue(std::move(work));
  };
}

/// Runs the fiber, on a worker.
void Session::runTurn()
{
  if (!queue_.beginTurn())
    return;
  {
    const CurrentScope scope(this);
    if (!fiber_)
      fiber_ = std::make_unique<Fiber>([this] { live(); });
    fiber_->resume();
    // The first event leaves the deepest traces.
    if (!fiber_->finished() && (resumptions_++ & 15) == 0)
      fiber_->trim();
  }
  const bool finished = fiber_->finished();
  queue_.endTurn(finished);
  if (finished)
    ended_(*this);
}

/// On the fiber.
SessionWork Session::next()
{
  SessionWork work;
  while (!queue_.take(work))
    fiber_->suspend();
  return work;
}

// --- What others ask for, from any thread
// --------------------------------------------------------------------------

void Session::begin(std::shared_ptr<Transport> transport, std::uint64_t connection, ClientMessage hello)
{
  SessionWork work;
  work.kind = SessionWork::Begin;
  work.number = connection;
  work.transport = std::move(transport);
  work.hello = std::move(hello);
  enqueue(std::move(work));
}

void Session::resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen,
                     std::string scheme)
{
  SessionWork work;
  work.kind = SessionWork::Attach;
  work.number = connection;
  work.seen = seen;
  work.text = std::move(scheme);
  work.transport = std::move(transport);
  // While the page is back it does not expire, even if the session is too busy to take note.
  awaySince_ = 0;
  enqueue(std::move(work));
}

void Session::received(std::uint64_t connection, std::string message)
{
  SessionWork work;
  work.kind = SessionWork::Message;
  work.number = connection;
  work.text = std::move(message);
  enqueue(std::move(work));
}

void Session::closed(std::uint64_t connection, bool goodbye)
{
  SessionWork work;
  work.kind = SessionWork::Detach;
  work.number = connection;
  work.seen = goodbye;
  enqueue(std::move(work));
}

void Session::post(std::function<void()> function)
{
  SessionWork work;
  work.kind = SessionWork::Call;
  work.call = std::move(function);
  enqueue(std::move(work));
}

bool Session::hasResource(const std::string &id, const std::string &secret) const
{
  return resources_.has(id, secret);
}

void Session::requested(std::shared_ptr<ResourceRequest> request)
{
  SessionWork work;
  work.kind = SessionWork::Request;
  work.request = std::move(request);
  enqueue(std::move(work));
}

void Session::progress(const std::string &resourceId, std::uint64_t got, std::uint64_t total)
{
  if (!resources_.noteProgress(resourceId, {got, total}))
    return;
  SessionWork work;
  work.kind = SessionWork::Progress;
  work.text = resourceId;
  enqueue(std::move(work));
}

void Session::kill(const std::string &farewell)
{
  queue_.kill(farewell);
}

bool Session::expired(Scheduler::TimePoint now) const
{
  const Scheduler::TimePoint::rep since = awaySince_;
  if (since == 0)
    return false;
  std::chrono::seconds limit = config_.timeout;
  if (!entered_ && (limit.count() < 0 || limit > config_.doorTimeout))
    limit = config_.doorTimeout;
  return limit.count() >= 0 && now.time_since_epoch() - Scheduler::TimePoint::duration(since) >= limit;
}

// --- The life on the fiber
// -----------------------------------------------------------------------------------------

void Session::live()
{
  try {
    for (;;) {
      SessionWork work = next();
      handle(work);
    }
  } catch (const std::exception &e) {
    failed(e.what());
  } catch (...) {
    failed("an exception of unknown type");
  }
  channel_.end(queue_.farewell());
  destroyApplication();
  for (SessionWork &left : queue_.drop())
    left.refuse();
}

/// A handler ended with an exception. That is the rule when the session was killed, and a fault otherwise.
void Session::failed(const char *what)
{
  if (queue_.killed())
    return;
  std::string farewell = "{\"quit\":{\"text\":";
  Dom::appendJsonString(farewell, ownText("Wt.Page.Failed", kFailureText));
  if (queue_.kill(farewell + ",\"now\":true}}"))
    log(LogLevel::Fatal, "session", publicId() + " ended by an exception: " + what);
}

void Session::createApplication()
{
  WApplication *created = origin_.entryPoint.creator(*environment_);
  if (!created)
    throw WException("no application object was made");
}

void Session::destroyApplication()
{
  parts_.clear();
  timers_.clear();
  setSeen(true);
  WApplication *application = application_;
  if (!application)
    return;
  try {
    parts_.add([application] { application->finalize(); });
    notify(OtherEvent);
    delete application;
  } catch (const std::exception &e) {
    log(LogLevel::Error, "session", publicId() + ": an exception while it was ending: " + e.what());
  }
  application_ = nullptr;
  resources_.clear();
}

// --- Handling what is in the queue
// ---------------------------------------------------------------------------------

void Session::waitForEvent()
{
  if (!queue_.heldByThisThread() || !fiber_ || fiber_->finished())
    throw WException("this thread cannot wait for events of the session");
  parts_.run();
  flush();
  endIfQuitting();
  for (;;) {
    SessionWork work = next();
    if (handle(work))
      return;
  }
}

void Session::processEvents()
{
  SessionWork work;
  work.kind = SessionWork::FollowUp;
  parts_.run();
  enqueue(std::move(work));
  waitForEvent();
}

void Session::waitForDialog(WDialog &, const std::function<bool()> &runs)
{
  WApplication *application = application_;
  while (runs())
    application->waitForEvent();
}

/// True if it was an event that a waiting handler looks for.
bool Session::handle(SessionWork &work)
{
  switch (work.kind) {
  case SessionWork::Begin:
    return handleBegin(work);
  case SessionWork::Attach:
    return handleAttach(work);
  case SessionWork::Message:
    return handleMessage(work);
  case SessionWork::Detach:
    return handleDetach(work);
  case SessionWork::Alarm:
    return handleAlarm();
  case SessionWork::Tick:
    return handleTick(work);
  case SessionWork::Beat:
    return handleBeat();
  case SessionWork::Request:
    return handleRequest(work);
  case SessionWork::Progress:
    return handleProgress(work);
  case SessionWork::Call:
    parts_.add(std::move(work.call));
    break;
  case SessionWork::FollowUp:
    break;
  }
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

bool Session::handleBegin(SessionWork &work)
{
  channel_.open(std::move(work.transport), work.number, origin_.token);
  environment_ = std::make_unique<Environment>();
  WEnvironment &environment = *environment_;
  environment.session_ = this;
  environment.sessionId_ = origin_.publicId;
  environment.deploymentPath_ = origin_.entryPoint.path;
  environment.readHead(origin_.head);
  environment.readQuery(work.hello.query);
  environment.timeZoneOffset_ = work.hello.timeZone;
  environment.screenWidth_ = work.hello.screenWidth;
  environment.screenHeight_ = work.hello.screenHeight;
  environment.locale_ = WLocale(work.hello.language);
  environment.server_ = config_.server;
  createApplication();
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

bool Session::handleAttach(SessionWork &work)
{
  if (!channel_.resume(work.transport, work.number, work.seen)) {
    work.refuse();
    return violation("it resumes with an update that it cannot have seen");
  }
  page_.seen(work.seen);
  if (!work.text.empty())
    environment_->urlScheme_ = work.text;
  awaySince_ = 0;
  setSeen(true);
  for (const TimerSet::Ticket ticket : timers_.wake())
    enqueueTick(ticket, true);
  flush();
  return false;
}

bool Session::handleDetach(SessionWork &work)
{
  if (work.number != channel_.connection())
    return false;
  channel_.lost();
  awaySince_ = scheduler_.now().time_since_epoch().count();
  if (!work.seen)
    return false;
  parts_.add([this] {
    if (application_)
      application_.load()->unload();
  });
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

bool Session::handleMessage(SessionWork &work)
{
  if (work.number != channel_.connection())
    return false;
  ClientMessage message;
  if (!ClientMessage::decode(work.text, message))
    return violation("it sends what is no message");
  switch (message.kind) {
  case ClientMessage::Seen:
    if (!channel_.acknowledged(message.seen))
      return violation("it acknowledges an update that it was not sent");
    page_.seen(message.seen);
    return false;
  case ClientMessage::Visibility:
    setSeen(message.visible);
    return false;
  case ClientMessage::Events:
    return handleEvents(message);
  default:
    return violation("it says hello twice");
  }
}

bool Session::handleEvents(ClientMessage &message)
{
  switch (channel_.received(message.number, message.seen)) {
  case Channel::Violation:
    return violation("its messages are out of order");
  case Channel::Ignore:
    return false;
  case Channel::Process:
    break;
  }
  page_.seen(message.seen);
  const bool user = !message.events.empty();
  pageEvents_.gather(std::move(message), parts_);
  notify(user ? UserEvent : OtherEvent);
  channel_.send(std::string());
  endIfQuitting();
  return true;
}

bool Session::handleAlarm()
{
  for (const TimerSet::Ticket ticket : timers_.due())
    enqueueTick(ticket, false);
  return false;
}

bool Session::handleTick(SessionWork &work)
{
  const TimerSet::Ticket ticket = work.number;
  const WTimer *timer = timers_.running(ticket);
  if (!timer)
    return false;
  if (!channel_.connected() || (beat_ && !work.gathered && !timer->isSingleShot())) {
    timers_.rest(ticket);
    return false;
  }
  timers_.take(ticket);
  parts_.add([this, ticket] {
    if (WTimer *running = timers_.running(ticket))
      running->tick();
  });
  notify(TimerEvent);
  endIfQuitting();
  return true;
}

bool Session::handleBeat()
{
  if (!beat_)
    return false;
  beat_ = scheduler_.after(kBeat, enqueuing(SessionWork::Beat));
  for (const TimerSet::Ticket ticket : timers_.wake())
    enqueueTick(ticket, true);
  return false;
}

/// Somebody sees the page, or nobody does.
void Session::setSeen(bool seen)
{
  if (seen == (beat_ == 0))
    return;
  if (!seen) {
    beat_ = scheduler_.after(kBeat, enqueuing(SessionWork::Beat));
    return;
  }
  scheduler_.cancel(beat_);
  beat_ = 0;
  if (channel_.connected())
    for (const TimerSet::Ticket ticket : timers_.wake())
      enqueueTick(ticket, true);
}

bool Session::handleRequest(SessionWork &work)
{
  const auto handler = resources_.find(work.request->resourceId);
  if (!handler)
    return false;
  parts_.add([this, handler, request = std::move(work.request)] {
    if (handler->wantsLock())
      request->serve(*handler);
    else
      scheduler_.post([self = shared_from_this(), handler, request] {
        const CurrentScope scope(self.get());
        request->serve(*handler);
      });
  });
  notify(ResourceEvent);
  endIfQuitting();
  return false;
}

bool Session::handleProgress(SessionWork &work)
{
  const ResourceTable::Bytes bytes = resources_.takeProgress(work.text);
  const auto handler = resources_.find(work.text);
  if (!handler)
    return false;
  parts_.add([handler, bytes] { handler->progress(bytes.first, bytes.second); });
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

/// False: what the page has sent is no event.
bool Session::violation(const std::string &what)
{
  log(LogLevel::Warning, "session", publicId() + " ended: its page breaks the protocol: " + what);
  kill(kReloadMessage);
  return false;
}

void Session::notify(int eventType)
{
  WApplication *application = application_;
  if (!initialized_) {
    initialized_ = true;
    application->initialize();
  }
  application->notify(EventAccess::makeEvent(eventType, &parts_));
  // Of an event that notify() did not pass on nothing happens.
  parts_.clear();
  timers_.settle();
}

void Session::deliver(const WEvent &event)
{
  static_cast<EventParts *>(EventAccess::context(event))->run();
  flush();
}

void Session::flush()
{
  if (!channel_.connected() || !application_)
    return;
  if (!themeSent_)
    sendTheme();
  page_.render();
  noteEntrance();
  if (redirecting_ && !quitting_) {
    std::string url;
    Dom::appendJsonString(url, redirect_);
    page_.command("redirect", url);
    redirecting_ = false;
  }
  channel_.send(page_.takeUpdate(channel_.nextUpdate()));
  const PageLimits &limits = entered_ ? config_.page : config_.doorPage;
  if (channel_.unacknowledgedBytes() > limits.unacknowledgedBytes)
    violation("it acknowledges nothing");
}

void Session::noteEntrance()
{
  const WApplication *application = application_;
  const WContainerWidget *all = WidgetAccess::domRoot(application);
  // A program may have deleted its root.
  if (entered_ || !all || all->indexOf(application->root()) < 0 || application->root()->count() == 0)
    return;
  entered_ = true;
  queue_.enter();
}

void Session::sendTheme()
{
  themeSent_ = true;
  const std::string theme = application_.load()->cssTheme();
  if (!theme.empty())
    page_.addStyleSheet("resources/themes/" + theme + "/wt.css");
  page_.setTexts(ownScriptTexts());
}

void Session::push()
{
  if (queue_.lockedByThisThread())
    flush();
}

void Session::endIfQuitting()
{
  if (!quitting_)
    return;
  std::string message = "{\"quit\":{";
  if (redirecting_) {
    message += "\"url\":";
    Dom::appendJsonString(message, redirect_);
  } else {
    message += "\"text\":";
    Dom::appendJsonString(message, quitMessage_);
  }
  kill(message + "}}");
}

void Session::redirect(const std::string &url)
{
  redirect_ = url.empty() ? "?" : url;
  redirecting_ = true;
}

void Session::quit(const std::string &message)
{
  quitting_ = true;
  quitMessage_ = message;
}

std::string Session::addResource(const std::string &id, std::shared_ptr<ResourceHandler> handler)
{
  return deploymentPath() + "?wtd=" + publicId() + resources_.add(id, std::move(handler));
}

} // namespace Engine
} // namespace Wt
