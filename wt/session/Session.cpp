// SPDX-License-Identifier: MIT
#include "session/Session.h"

#include "base/EventAccess.h"
#include "base/Log.h"
#include "base/OwnTexts.h"
#include "dom/JsonText.h"
#include "session/Random.h"
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WEnvironment>
#include <Wt/WException>
#include <Wt/WTimer>
#include <algorithm>
#include <cstdio>

namespace Wt
{
namespace Engine
{

namespace
{

const char kReloadMessage[] = "{\"reload\":true}";
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

WException killedException()
{
  return WException("session was killed");
}

} // namespace

struct Session::Environment : public WEnvironment {
};

struct Session::ResourceRequest {
  std::string resourceId;
  std::string rand;
  RequestHead head;
  std::vector<SpooledFile> files;
  std::uint64_t tooLarge = 0;
  std::shared_ptr<ResourceResponse> response;

  ~ResourceRequest()
  {
    if (response)
      refuse(files, *response);
  }

  void serve(ResourceHandler &handler)
  {
    const auto answer = std::move(response);
    try {
      handler.serve(std::move(head), std::move(files), tooLarge, answer);
    } catch (const std::exception &e) {
      log(LogLevel::Error, "session", std::string("a resource failed: ") + e.what());
      // Has no effect on an answer that is under way.
      answer->setStatus(500);
      answer->finish();
    }
  }
};

Session::Session(Scheduler &scheduler, const SessionConfig &config, Origin origin,
                 std::function<void(Session &)> ended)
    : scheduler_(scheduler), config_(config), origin_(std::move(origin)), ended_(std::move(ended)),
      awaySince_(scheduler.now()), timers_(scheduler, [this](TimerSet::Ticket ticket) -> Scheduler::Task {
        return [weak = weak_from_this(), ticket] {
          if (const auto self = weak.lock())
            self->enqueueTick(ticket);
        };
      })
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

bool Session::full(const Work &work) const
{
  return work.kind == Work::Message && (queuedMessages_ >= config_.maxQueuedMessages ||
                                        queuedBytes_ + work.text.size() > config_.maxQueuedBytes);
}

void Session::enqueue(Work work)
{
  std::unique_lock<std::mutex> held(mutex_);
  if (dead_ || killed_)
    return;
  if (full(work)) {
    held.unlock();
    log(LogLevel::Warning, "session", publicId() + " ended: its page sends more than it handles");
    kill(kReloadMessage);
    return;
  }
  if (work.kind == Work::Message) {
    ++queuedMessages_;
    queuedBytes_ += work.text.size();
  }
  queue_.push_back(std::move(work));
  schedule(held);
}

void Session::enqueueTick(TimerSet::Ticket ticket)
{
  Work work;
  work.kind = Work::Tick;
  work.number = ticket;
  enqueue(std::move(work));
}

void Session::schedule(std::unique_lock<std::mutex> &)
{
  if (scheduled_ || holder_ != Holder::Nobody || dead_)
    return;
  scheduled_ = true;
  scheduler_.post([self = shared_from_this()] { self->run(); });
}

void Session::run()
{
  {
    std::unique_lock<std::mutex> held(mutex_);
    scheduled_ = false;
    if (holder_ != Holder::Nobody || dead_)
      return;
    holder_ = Holder::Worker;
    holderThread_ = std::this_thread::get_id();
  }
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
  std::unique_lock<std::mutex> held(mutex_);
  dead_ = finished;
  release(held);
  held.unlock();
  if (finished)
    ended_(*this);
}

void Session::release(std::unique_lock<std::mutex> &held)
{
  holder_ = Holder::Nobody;
  holderThread_ = std::thread::id();
  if (!dead_ && (!queue_.empty() || killed_))
    schedule(held);
  released_.notify_all();
}

Session::Work Session::next()
{
  for (;;) {
    {
      std::unique_lock<std::mutex> held(mutex_);
      if (killed_)
        throw killedException();
      if (!queue_.empty()) {
        Work work = std::move(queue_.front());
        queue_.pop_front();
        if (work.kind == Work::Message) {
          --queuedMessages_;
          queuedBytes_ -= work.text.size();
        }
        return work;
      }
    }
    fiber_->suspend();
  }
}

bool Session::lock(bool &alreadyHeld)
{
  std::unique_lock<std::mutex> held(mutex_);
  alreadyHeld = holder_ != Holder::Nobody && holderThread_ == std::this_thread::get_id();
  if (alreadyHeld)
    return true;
  released_.wait(held, [this] { return holder_ == Holder::Nobody || killed_ || dead_; });
  if (killed_ || dead_)
    return false;
  holder_ = Holder::Lock;
  holderThread_ = std::this_thread::get_id();
  return true;
}

void Session::unlock()
{
  std::unique_lock<std::mutex> held(mutex_);
  release(held);
}

bool Session::heldByThisThread() const
{
  const std::unique_lock<std::mutex> held(mutex_);
  return holder_ != Holder::Nobody && holderThread_ == std::this_thread::get_id();
}

// --- What others ask for, from any thread
// --------------------------------------------------------------------------

void Session::begin(std::shared_ptr<Transport> transport, std::uint64_t connection, ClientMessage hello)
{
  Work work;
  work.kind = Work::Begin;
  work.number = connection;
  work.transport = std::move(transport);
  work.hello = std::move(hello);
  enqueue(std::move(work));
}

void Session::resume(std::shared_ptr<Transport> transport, std::uint64_t connection, std::uint64_t seen,
                     std::string scheme)
{
  Work work;
  work.kind = Work::Attach;
  work.number = connection;
  work.seen = seen;
  work.text = std::move(scheme);
  work.transport = std::move(transport);
  {
    // While the page is back it does not expire, even if the session is too busy to take note.
    const std::lock_guard<std::mutex> held(mutex_);
    away_ = false;
  }
  enqueue(std::move(work));
}

void Session::received(std::uint64_t connection, std::string message)
{
  Work work;
  work.kind = Work::Message;
  work.number = connection;
  work.text = std::move(message);
  enqueue(std::move(work));
}

void Session::closed(std::uint64_t connection, bool goodbye)
{
  Work work;
  work.kind = Work::Detach;
  work.number = connection;
  work.seen = goodbye;
  enqueue(std::move(work));
}

void Session::post(std::function<void()> function)
{
  Work work;
  work.kind = Work::Call;
  work.call = std::move(function);
  enqueue(std::move(work));
}

void Session::requested(const std::string &resourceId, const std::string &rand, RequestHead head,
                        std::vector<SpooledFile> files, std::uint64_t tooLarge,
                        std::shared_ptr<ResourceResponse> response)
{
  Work work;
  work.kind = Work::Request;
  work.request = std::make_shared<ResourceRequest>();
  work.request->resourceId = resourceId;
  work.request->rand = rand;
  work.request->head = std::move(head);
  work.request->files = std::move(files);
  work.request->tooLarge = tooLarge;
  work.request->response = std::move(response);
  enqueue(std::move(work));
}

void Session::progress(const std::string &resourceId, const std::string &rand, std::uint64_t got,
                       std::uint64_t total)
{
  const std::string key = resourceId + ' ' + rand;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    const auto known = progress_.find(key);
    if (known != progress_.end()) {
      known->second = {got, total};
      return;
    }
    if (progress_.size() >= 64)
      return;
    progress_.emplace(key, std::make_pair(got, total));
  }
  Work work;
  work.kind = Work::Progress;
  work.text = key;
  enqueue(std::move(work));
}

void Session::kill(const std::string &farewell)
{
  std::unique_lock<std::mutex> held(mutex_);
  if (killed_ || dead_)
    return;
  killed_ = true;
  farewell_ = farewell;
  schedule(held);
  released_.notify_all();
}

bool Session::expired(Scheduler::TimePoint now) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return away_ && config_.timeout.count() >= 0 && now - awaySince_ >= config_.timeout;
}

bool Session::dead() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return dead_;
}

// --- The life on the fiber
// -----------------------------------------------------------------------------------------

void Session::live()
{
  try {
    loop();
  } catch (const std::exception &e) {
    failed(e.what());
  } catch (...) {
    failed("an exception of unknown type");
  }
  farewell();
  destroyApplication();
  std::deque<Work> rest;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    rest.swap(queue_);
  }
}

void Session::loop()
{
  for (;;) {
    Work work = next();
    handle(work);
  }
}

/// A handler ended with an exception. That is the rule when the session was killed, and a fault otherwise.
void Session::failed(const char *what)
{
  const std::string text = ownText("Wt.Page.Failed", kFailureText);
  const std::lock_guard<std::mutex> held(mutex_);
  if (killed_)
    return;
  killed_ = true;
  farewell_ = "{\"quit\":{\"text\":";
  Dom::appendJsonString(farewell_, text);
  farewell_ += ",\"now\":true}}";
  released_.notify_all();
  log(LogLevel::Fatal, "session", publicId() + " ended by an exception: " + what);
}

void Session::farewell()
{
  std::string message;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    message = farewell_;
  }
  channel_.end(message);
}

void Session::createApplication()
{
  WApplication *created = origin_.entryPoint.creator(*environment_);
  if (!created)
    throw WException("no application object was made");
}

void Session::destroyApplication()
{
  pending_.clear();
  timers_.clear();
  WApplication *application = application_;
  if (!application)
    return;
  try {
    pending_.push_back([application] { application->finalize(); });
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
  if (!heldByThisThread() || !fiber_ || fiber_->finished())
    throw WException("this thread cannot wait for events of the session");
  drain();
  flush();
  endIfQuitting();
  for (;;) {
    Work work = next();
    if (handle(work))
      return;
  }
}

void Session::processEvents()
{
  Work work;
  work.kind = Work::FollowUp;
  drain();
  enqueue(std::move(work));
  waitForEvent();
}

/// True if it was an event that a waiting handler looks for.
bool Session::handle(Work &work)
{
  switch (work.kind) {
  case Work::Begin:
    return handleBegin(work);
  case Work::Attach:
    return handleAttach(work);
  case Work::Message:
    return handleMessage(work);
  case Work::Detach:
    return handleDetach(work);
  case Work::Tick:
    return handleTick(work.number);
  case Work::Request:
    return handleRequest(work);
  case Work::Progress:
    return handleProgress(work);
  case Work::Call:
    pending_.push_back(std::move(work.call));
    break;
  case Work::FollowUp:
    break;
  }
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

bool Session::handleBegin(Work &work)
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

bool Session::handleAttach(Work &work)
{
  if (!channel_.resume(std::move(work.transport), work.number, work.seen)) {
    violation("it resumes with an update that it cannot have seen");
    return false;
  }
  page_.seen(work.seen);
  if (!work.text.empty())
    environment_->urlScheme_ = work.text;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    away_ = false;
  }
  for (const TimerSet::Ticket ticket : timers_.wake())
    enqueueTick(ticket);
  flush();
  return false;
}

bool Session::handleDetach(Work &work)
{
  if (work.number != channel_.connection())
    return false;
  channel_.lost();
  {
    const std::lock_guard<std::mutex> held(mutex_);
    away_ = true;
    awaySince_ = scheduler_.now();
  }
  if (!work.seen)
    return false;
  pending_.push_back([this] {
    if (application_)
      application_.load()->unload();
  });
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

bool Session::handleMessage(Work &work)
{
  if (work.number != channel_.connection())
    return false;
  ClientMessage message;
  if (!ClientMessage::decode(work.text, message)) {
    violation("it sends what is no message");
    return false;
  }
  switch (message.kind) {
  case ClientMessage::Seen:
    if (!channel_.acknowledged(message.seen))
      violation("it acknowledges an update that it was not sent");
    else
      page_.seen(message.seen);
    return false;
  case ClientMessage::Events:
    return handleEvents(message);
  default:
    violation("it says hello twice");
    return false;
  }
}

bool Session::handleEvents(ClientMessage &message)
{
  switch (channel_.received(message.number, message.seen)) {
  case Channel::Violation:
    violation("its messages are out of order");
    return false;
  case Channel::Ignore:
    return false;
  case Channel::Process:
    break;
  }
  page_.seen(message.seen);
  const bool user = !message.events.empty();
  // Values first, then what the user changed, then the rest in the browser's order.
  std::stable_partition(message.events.begin(), message.events.end(),
                        [](const ClientMessage::Event &event) { return event.data.name == "change"; });
  auto events = std::move(message.events);
  pending_.push_back(
      [this, values = std::make_shared<ClientMessage>(std::move(message))] { applyValues(*values); });
  for (ClientMessage::Event &event : events)
    pending_.push_back(
        [this, event = std::make_shared<ClientMessage::Event>(std::move(event))] { dispatchDom(*event); });
  notify(user ? UserEvent : OtherEvent);
  channel_.send(std::string());
  endIfQuitting();
  return true;
}

bool Session::handleTick(TimerSet::Ticket ticket)
{
  if (!channel_.connected()) {
    timers_.rest(ticket);
    return false;
  }
  if (!timers_.take(ticket))
    return false;
  pending_.push_back([this, ticket] {
    if (WTimer *timer = timers_.running(ticket))
      timer->tick();
  });
  notify(TimerEvent);
  endIfQuitting();
  return true;
}

bool Session::handleRequest(Work &work)
{
  const Resource *found = resource(work.request->resourceId, work.request->rand);
  if (!found)
    return false;
  pending_.push_back([this, handler = found->handler, request = std::move(work.request)] {
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

bool Session::handleProgress(Work &work)
{
  std::pair<std::uint64_t, std::uint64_t> told;
  {
    const std::lock_guard<std::mutex> held(mutex_);
    told = progress_[work.text];
    progress_.erase(work.text);
  }
  const std::size_t blank = work.text.find(' ');
  const Resource *found = resource(work.text.substr(0, blank), work.text.substr(blank + 1));
  if (!found)
    return false;
  pending_.push_back([handler = found->handler, told] { handler->progress(told.first, told.second); });
  notify(OtherEvent);
  endIfQuitting();
  return true;
}

void Session::violation(const std::string &what)
{
  log(LogLevel::Warning, "session", publicId() + " ended: its page breaks the protocol: " + what);
  kill(kReloadMessage);
}

void Session::notify(int eventType)
{
  WApplication *application = application_;
  if (!initialized_) {
    initialized_ = true;
    application->initialize();
  }
  application->notify(EventAccess::makeEvent(eventType, this));
  pending_.clear();
}

void Session::deliver(const WEvent &)
{
  drain();
  flush();
}

void Session::drain()
{
  while (!pending_.empty()) {
    const auto event = std::move(pending_.front());
    pending_.pop_front();
    event();
  }
}

void Session::applyValues(const ClientMessage &message)
{
  if (message.hasFocus)
    page_.focusReported(page_.find(message.focus) ? message.focus : 0);
  for (const auto &value : message.values) {
    Dom::Element *element = page_.find(value.first);
    if (element && element->attached() && element->owner() && page_.valueAccepted(value.first, message.seen))
      element->owner()->domValue(*element, value.second);
  }
}

void Session::dispatchDom(const ClientMessage::Event &event)
{
  Dom::Element *element = page_.find(event.element);
  const std::string &name = event.data.name;
  const std::string listener = '@' + name;
  const std::string behaviour = '!' + name.substr(0, name.find(':'));
  if (!element || !element->attached() || !element->owner()) {
    log(LogLevel::Info, "session", publicId() + ": event '" + name + "' for a widget that is gone");
  } else if (!element->get(listener.c_str()) && !element->get(behaviour.c_str())) {
    log(LogLevel::Info, "session", publicId() + ": event '" + name + "' that nobody listens to");
  } else {
    element->owner()->domEvent(*element, event.data);
  }
}

void Session::flush()
{
  if (!channel_.connected() || !application_)
    return;
  if (!themeSent_)
    sendTheme();
  page_.render();
  if (redirecting_ && !quitting_) {
    std::string url;
    Dom::appendJsonString(url, redirect_);
    page_.command("redirect", url);
    redirecting_ = false;
  }
  channel_.send(page_.takeUpdate(channel_.nextUpdate()));
  if (channel_.unacknowledgedBytes() > config_.maxUnacknowledgedBytes)
    violation("it acknowledges nothing");
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
  {
    const std::lock_guard<std::mutex> held(mutex_);
    if (holder_ != Holder::Lock || holderThread_ != std::this_thread::get_id())
      return;
  }
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

// --- Resources
// -----------------------------------------------------------------------------------------------------

std::string Session::addResource(const std::string &id, std::shared_ptr<ResourceHandler> handler)
{
  {
    const std::lock_guard<std::mutex> held(mutex_);
    resourceIds_.insert(id);
  }
  Resource &resource = resources_[id];
  resource.handler = std::move(handler);
  resource.rand = randomName(16);
  return deploymentPath() + "?wtd=" + publicId() + "&request=resource&resource=" + id +
         "&rand=" + resource.rand;
}

void Session::refuse(const std::vector<SpooledFile> &files, ResourceResponse &response)
{
  for (const SpooledFile &file : files)
    std::remove(file.spoolPath.c_str());
  response.setStatus(404);
  response.finish();
}

bool Session::hasResource(const std::string &id) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return !dead_ && resourceIds_.count(id) > 0;
}

void Session::removeResource(const std::string &id)
{
  {
    const std::lock_guard<std::mutex> held(mutex_);
    resourceIds_.erase(id);
  }
  resources_.erase(id);
}

const Session::Resource *Session::resource(const std::string &id, const std::string &rand) const
{
  const auto found = resources_.find(id);
  return found != resources_.end() && found->second.rand == rand ? &found->second : nullptr;
}

// --- Tests
// -----------------------------------------------------------------------------------------------------------

bool Session::dialogExecuted(WDialog *dialog)
{
  if (!dialogExecuted_)
    return false;
  dialogExecuted_(dialog);
  return true;
}

void Session::enterTest(std::function<void(WDialog *)> dialogExecuted)
{
  dialogExecuted_ = std::move(dialogExecuted);
  const std::lock_guard<std::mutex> held(mutex_);
  holder_ = Holder::Worker;
  holderThread_ = std::this_thread::get_id();
  makeCurrent(this);
}

void Session::leaveTest()
{
  makeCurrent(nullptr);
  timers_.clear();
  const std::lock_guard<std::mutex> held(mutex_);
  killed_ = dead_ = true;
}

} // namespace Engine
} // namespace Wt
