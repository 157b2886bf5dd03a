// SPDX-License-Identifier: MIT
#include "session/SessionManager.h"

#include "base/Log.h"
#include "base/OwnTexts.h"
#include "base/ResourceUrl.h"
#include "dom/JsonText.h"
#include "session/Random.h"
#include "session/Session.h"
#include "session/TextSources.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <tuple>

namespace Wt
{
namespace Engine
{

namespace
{

const std::size_t kMaxHelloSize = 32 * 1024;

const char kFullText[] = "Too many people are using this system at the moment. Please try again later.";
const char kRateText[] =
    "Too many pages were opened from this address in a short time. Please try again in a moment.";
const char kStoppingText[] = "The server is shutting down. Please try again later.";

std::string escaped(const std::string &text)
{
  std::string result;
  for (const char c : text) {
    switch (c) {
    case '&':
      result += "&amp;";
      break;
    case '<':
      result += "&lt;";
      break;
    case '>':
      result += "&gt;";
      break;
    case '"':
      result += "&quot;";
      break;
    default:
      result += c;
    }
  }
  return result;
}

} // namespace

/// One connection of a page: finds out from its first message which session it belongs to.
class SessionManager::Connection : public TransportListener
{
public:
  Connection(std::shared_ptr<SessionManager> manager, RequestHead head, std::shared_ptr<Transport> transport)
      : manager_(std::move(manager)), head_(std::move(head)), transport_(std::move(transport)),
        number_(nextNumber())
  {
  }

  void received(std::string message) override
  {
    if (session_)
      session_->received(number_, std::move(message));
    else if (!over_)
      introduce(message);
  }

  void closed(bool goodbye) override
  {
    if (session_)
      session_->closed(number_, goodbye);
    over_ = true;
    session_.reset();
    transport_.reset();
  }

private:
  static std::uint64_t nextNumber()
  {
    static std::atomic<std::uint64_t> last{0};
    return ++last;
  }

  void introduce(const std::string &text)
  {
    ClientMessage message;
    if (text.size() > kMaxHelloSize || !ClientMessage::decode(text, message) ||
        (message.kind != ClientMessage::Hello && message.kind != ClientMessage::Resume)) {
      log(LogLevel::Warning, "session",
          "a connection from " + head_.clientAddress + " does not begin with a greeting");
      end(std::string());
    } else if (message.kind == ClientMessage::Hello) {
      begin(std::move(message));
    } else {
      resume(message);
    }
  }

  void begin(ClientMessage hello)
  {
    std::string refusal;
    session_ = manager_->begin(head_, refusal);
    if (!session_) {
      std::string busy = "{\"busy\":";
      Dom::appendJsonString(busy, refusal);
      end(busy + '}');
      return;
    }
    session_->begin(std::move(transport_), number_, std::move(hello));
  }

  void resume(const ClientMessage &message)
  {
    session_ = manager_->findByToken(message.token);
    if (!session_)
      end("{\"reload\":true}");
    else
      session_->resume(std::move(transport_), number_, message.seen, head_.scheme);
  }

  void end(const std::string &message)
  {
    over_ = true;
    if (!message.empty())
      transport_->send(message);
    transport_->close("refused");
  }

  const std::shared_ptr<SessionManager> manager_;
  const RequestHead head_;
  std::shared_ptr<Transport> transport_;
  std::shared_ptr<Session> session_;
  const std::uint64_t number_;
  bool over_ = false;
};

SessionManager::SessionManager(Scheduler &scheduler, SessionConfig config)
    : scheduler_(scheduler), turns_(std::make_shared<TurnQueue>(scheduler)), config_(std::move(config))
{
  installTextSources();
}

SessionManager::~SessionManager() = default;

void SessionManager::addEntryPoint(EntryPoint entryPoint)
{
  if (entryPoint.path.empty())
    entryPoint.path = "/";
  entryPoints_.push_back(std::move(entryPoint));
}

const EntryPoint *SessionManager::entryPoint(const std::string &path) const
{
  for (const EntryPoint &entryPoint : entryPoints_)
    if (entryPoint.path == path)
      return &entryPoint;
  return nullptr;
}

std::string SessionManager::bootstrapPage(const RequestHead &head)
{
  const EntryPoint *place = entryPoint(head.entryPoint);
  const std::string path = escaped(place ? place->path : "/");
  std::string page = "<!DOCTYPE html>\n<html lang=\"en\">\n<head>\n<meta charset=\"utf-8\">\n"
                     "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
                     "<title></title>\n";
  if (place && !place->favicon.empty())
    // The runtime fetches it once the page is shown.
    page += "<link rel=\"icon\" href=\"data:,\" data-href=\"" + escaped(place->favicon) + "\">\n";
  page += "<script type=\"module\" src=\"" + path +
          "?request=script&amp;v=" + escaped(config_.scriptVersion) +
          "\"></script>\n</head>\n<body class=\"Wt-ltr\" data-wt=\"" + path +
          "\">\n"
          "<noscript>This page needs JavaScript.</noscript>\n</body>\n</html>\n";
  return page;
}

std::shared_ptr<TransportListener> SessionManager::connected(const RequestHead &head,
                                                             std::shared_ptr<Transport> transport)
{
  return std::make_shared<Connection>(shared_from_this(), head, std::move(transport));
}

/// Under the lock.
bool SessionManager::tooManyFrom(const std::string &address)
{
  const auto now = scheduler_.now();
  const auto old = [&](const Scheduler::TimePoint &when) {
    return now - when >= config_.newSessionsInterval;
  };
  // The table does not outgrow the addresses that were here lately.
  for (auto i = births_.begin(); i != births_.end();)
    i = i->first != address && old(i->second.back()) ? births_.erase(i) : std::next(i);
  std::deque<Scheduler::TimePoint> &recent = births_[address];
  while (!recent.empty() && old(recent.front()))
    recent.pop_front();
  if (recent.size() >= config_.maxNewSessionsPerAddress)
    return true;
  recent.push_back(now);
  return false;
}

/// Under the lock. Whoever is in keeps the place. A page at the door makes room for a new one: one that is
/// away, or else one of the address that has most of them there. Of these it is the oldest, which has had
/// most time to get in. So nobody can fill the server with pages that go no further. False if every page is
/// in.
bool SessionManager::makeRoom(const std::string &address)
{
  std::map<std::string, std::size_t> pagesAtDoor;
  std::size_t living = 0;
  for (const auto &entry : byPublicId_) {
    living += !entry.second->killed();
    if (!entry.second->entered() && !entry.second->killed())
      ++pagesAtDoor[entry.second->clientAddress()];
  }
  const bool full = living >= config_.maxSessions;
  const bool mostlyTheirs = pagesAtDoor[address] >= std::max<std::size_t>(config_.maxSessions * 4 / 5, 1);
  if (!full && !mostlyTheirs)
    return true;
  const auto value = [&](const Session &session) {
    const std::size_t crowd = session.clientAddress() == address && mostlyTheirs
                                  ? config_.maxSessions
                                  : pagesAtDoor[session.clientAddress()];
    return std::make_tuple(session.away(), crowd, -static_cast<std::int64_t>(session.number()));
  };
  const Session *least = nullptr;
  for (const auto &entry : byPublicId_) {
    const Session &session = *entry.second;
    if (session.entered() || session.killed() || (!full && session.clientAddress() != address))
      continue;
    if (!least || value(session) > value(*least))
      least = &session;
  }
  if (!least)
    return false;
  std::string busy = "{\"busy\":";
  Dom::appendJsonString(busy, ownText("Wt.Page.Full", kFullText));
  byPublicId_.at(least->publicId())->kill(busy + '}');
  return true;
}

std::shared_ptr<Session> SessionManager::begin(const RequestHead &head, std::string &refusal)
{
  const EntryPoint *place = entryPoint(head.entryPoint);
  const std::lock_guard<std::mutex> held(mutex_);
  if (stopping_ || !place) {
    refusal = ownText("Wt.Page.Stopping", kStoppingText);
  } else if (tooManyFrom(head.clientAddress)) {
    refusal = ownText("Wt.Page.TooMany", kRateText);
  } else if (!makeRoom(head.clientAddress)) {
    refusal = ownText("Wt.Page.Full", kFullText);
  }
  if (!refusal.empty()) {
    log(LogLevel::Warning, "session", "no session for " + head.clientAddress + ": " + refusal);
    return nullptr;
  }
  Session::Origin origin{head, *place, randomHex(16), config_.idPrefix + randomName(16), ++lastNumber_};
  const auto session = std::make_shared<Session>(
      turns_, config_, std::move(origin), [self = shared_from_this()](Session &gone) { self->ended(gone); });
  byPublicId_.emplace(session->publicId(), session);
  byToken_.emplace(session->token(), session.get());
  return session;
}

void SessionManager::ended(Session &session)
{
  std::shared_ptr<Session> last; // destroyed after the lock is given back
  const std::lock_guard<std::mutex> held(mutex_);
  byToken_.erase(session.token());
  const auto found = byPublicId_.find(session.publicId());
  if (found == byPublicId_.end())
    return;
  last = std::move(found->second);
  byPublicId_.erase(found);
  allEnded_.notify_all();
}

std::shared_ptr<Session> SessionManager::find(const std::string &publicId) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = byPublicId_.find(publicId);
  return found == byPublicId_.end() ? nullptr : found->second;
}

std::shared_ptr<Session> SessionManager::findByToken(const std::string &token) const
{
  const std::lock_guard<std::mutex> held(mutex_);
  const auto found = byToken_.find(token);
  return found == byToken_.end() ? nullptr : found->second->shared_from_this();
}

/// The session that a request for a resource is for, or null if it does not know the resource's secret.
std::shared_ptr<Session> SessionManager::sessionOf(const RequestHead &head) const
{
  const std::string *publicId = head.parameter("wtd");
  const std::string *id = head.parameter("resource");
  const std::string *secret = head.parameter("rand");
  const auto session = publicId && id && secret ? find(*publicId) : nullptr;
  return session && session->hasResource(*id, *secret) ? session : nullptr;
}

bool SessionManager::hasResource(const RequestHead &head) const
{
  return sessionOf(head) != nullptr;
}

void SessionManager::resource(RequestHead head, std::vector<SpooledFile> files, std::uint64_t tooLarge,
                              std::shared_ptr<ResourceResponse> response)
{
  const auto request = std::make_shared<ResourceRequest>();
  request->head = std::move(head);
  request->files = std::move(files);
  request->tooLarge = tooLarge;
  request->response = std::move(response);
  const auto session = sessionOf(request->head);
  if (!session)
    return;
  request->resourceId = *request->head.parameter("resource");
  session->requested(request);
}

void SessionManager::uploadProgress(const RequestHead &head, std::uint64_t got, std::uint64_t total)
{
  if (const auto session = sessionOf(head))
    session->progress(*head.parameter("resource"), got, total);
}

std::size_t SessionManager::sessionCount() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  return byPublicId_.size();
}

void SessionManager::post(const std::string &publicId, std::function<void()> function)
{
  if (const auto session = find(publicId))
    session->post(std::move(function));
}

std::vector<std::shared_ptr<Session>> SessionManager::all() const
{
  const std::lock_guard<std::mutex> held(mutex_);
  std::vector<std::shared_ptr<Session>> sessions;
  for (const auto &entry : byPublicId_)
    sessions.push_back(entry.second);
  return sessions;
}

bool SessionManager::expireSessions()
{
  const auto now = scheduler_.now();
  bool remaining = false;
  for (const auto &session : all()) {
    if (session->expired(now)) {
      log(LogLevel::Info, "session", session->publicId() + " has expired");
      session->kill();
    } else {
      remaining = true;
    }
  }
  return remaining;
}

void SessionManager::killAll()
{
  {
    const std::lock_guard<std::mutex> held(mutex_);
    stopping_ = true;
  }
  for (const auto &session : all())
    session->kill();
}

void SessionManager::stop()
{
  killAll();
  std::unique_lock<std::mutex> held(mutex_);
  allEnded_.wait(held, [this] { return byPublicId_.empty(); });
}

} // namespace Engine
} // namespace Wt
