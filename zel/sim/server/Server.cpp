// SPDX-License-Identifier: MIT
#include "server/Server.h"

#include "Frame.h"
#include "data/JsonText.h"
#include "server/Listener.h"
#include "server/Orders.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <sys/epoll.h>
#include <sys/signalfd.h>
#include <sys/socket.h>
#include <unistd.h>

namespace zelsim
{

namespace
{

constexpr std::uint64_t kListenerId = 1;
constexpr std::uint64_t kControlId = 2;
constexpr std::uint64_t kSignalId = 3;
constexpr std::uint64_t kDeskId = 4;
constexpr std::uint64_t kFirstPeerId = 16;

constexpr int kEventsPerTurn = 128;
// What one peer gets of a turn, so that a chatty one doesn't keep the others waiting.
constexpr int kFramesPerTurn = 8;
constexpr int kAcceptsPerTurn = 64;
// A peer that takes nothing of its answer for so long is disconnected.
constexpr std::chrono::seconds kLongestStall{30};
constexpr std::chrono::seconds kStallCheckPeriod{1};

void closeAndForget(int &fd)
{
  if (fd >= 0)
    ::close(fd);
  fd = -1;
}

std::int64_t processBehind(int fd)
{
  ucred credentials{};
  socklen_t size = sizeof credentials;
  return ::getsockopt(fd, SOL_SOCKET, SO_PEERCRED, &credentials, &size) == 0 ? credentials.pid : 0;
}

} // namespace

Server::Server(World &world, const Commands &commands, Faults &faults, Options options)
    : world_(world), commands_(commands), faults_(faults), options_(std::move(options)), reader_(world),
      publisher_(reader_.run()), writer_(world), lastId_(kFirstPeerId),
      now_(std::chrono::steady_clock::now()), events_(sizeof(epoll_event) * kEventsPerTurn),
      nextStallCheck_(now_)
{
}

Server::~Server()
{
  peers_.clear();
  closeDoor();
  if (control_ >= 0)
    ::unlink(options_.control.c_str());
  closeAndForget(control_);
  closeAndForget(signals_);
  closeAndForget(epoll_);
}

bool Server::watch(int fd, std::uint64_t id)
{
  epoll_event event{};
  event.events = EPOLLIN;
  event.data.u64 = id;
  return ::epoll_ctl(epoll_, EPOLL_CTL_ADD, fd, &event) == 0;
}

bool Server::listen(std::string &problem)
{
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGTERM);
  sigaddset(&signals, SIGINT);
  ::sigprocmask(SIG_BLOCK, &signals, nullptr);
  epoll_ = ::epoll_create1(EPOLL_CLOEXEC);
  signals_ = ::signalfd(-1, &signals, SFD_CLOEXEC | SFD_NONBLOCK);
  if (epoll_ < 0 || signals_ < 0 || !watch(signals_, kSignalId) || !desk_.open() ||
      !watch(desk_.fd(), kDeskId)) {
    problem = std::strerror(errno);
    return false;
  }
  isDown_ = faults_.dark;
  restartsTold_ = faults_.restarts;
  if (!isDown_ && !openDoor(problem))
    return false;
  if (!options_.control.empty()) {
    control_ = listenAt(options_.control, problem);
    if (control_ < 0 || !watch(control_, kControlId))
      return false;
  }
  if (!isDown_)
    tell("ready");
  return true;
}

void Server::tell(const char *news) const
{
  if (options_.tell)
    options_.tell(news);
}

bool Server::openDoor(std::string &problem)
{
  listener_ = listenAt(options_.socket, problem);
  return listener_ >= 0 && watch(listener_, kListenerId);
}

void Server::closeDoor()
{
  if (listener_ < 0)
    return;
  ::unlink(options_.socket.c_str());
  closeAndForget(listener_);
}

int Server::waitTime() const
{
  if (!backlog_.empty())
    return 0;
  Clock::Milliseconds wait = world_.clock.untilNext();
  auto shorten = [&wait](Clock::Milliseconds other) { wait = wait < 0 ? other : std::min(wait, other); };
  Time now = std::chrono::steady_clock::now();
  for (std::uint64_t id : late_) {
    auto entry = peers_.find(id);
    if (entry != peers_.end())
      shorten(std::max<Clock::Milliseconds>(
          std::chrono::ceil<std::chrono::milliseconds>(entry->second.peer->due() - now).count(), 0));
  }
  bool waitsForReaders = std::any_of(peers_.begin(), peers_.end(),
                                     [](const auto &entry) { return entry.second.interest == EPOLLOUT; });
  if (waitsForReaders)
    shorten(1000);
  return static_cast<int>(std::min<Clock::Milliseconds>(wait, 60 * 1000));
}

bool Server::run()
{
  while (!faults_.quit) {
    int ready =
        ::epoll_wait(epoll_, reinterpret_cast<epoll_event *>(events_.data()), kEventsPerTurn, waitTime());
    if (ready < 0 && errno != EINTR)
      return false;
    turn(std::max(ready, 0));
  }
  return true;
}

void Server::turn(int ready)
{
  now_ = std::chrono::steady_clock::now();
  std::vector<std::uint64_t> leftOver;
  leftOver.swap(backlog_);
  for (std::uint64_t id : leftOver)
    if (auto entry = peers_.find(id); entry != peers_.end() && entry->second.peer->wantsToRead())
      serve(*entry->second.peer);
  for (int i = 0; i < ready; ++i) {
    epoll_event event;
    std::memcpy(&event, events_.data() + sizeof event * static_cast<std::size_t>(i), sizeof event);
    std::uint64_t id = event.data.u64;
    if (id == kListenerId || id == kControlId) {
      accept(id == kListenerId ? listener_ : control_, id == kControlId);
      continue;
    }
    if (id == kSignalId) {
      faults_.quit = true;
      continue;
    }
    if (id == kDeskId) {
      takeUpSuspended();
      continue;
    }
    auto entry = peers_.find(id);
    if (entry == peers_.end())
      continue;
    Peer &peer = *entry->second.peer;
    if ((event.events & EPOLLOUT) != 0) {
      flush(peer);
    } else if ((event.events & EPOLLIN) != 0 && peer.wantsToRead() && !peer.hasWholeFrame()) {
      if (peer.read())
        serve(peer);
      else
        drop(id);
    } else if ((event.events & (EPOLLHUP | EPOLLERR)) != 0) {
      drop(id);
    }
  }
  world_.clock.runDue();
  commit();
  publisher_.publish(world_.store, faults_);
  release();
  sendDue();
  applyFaults();
  dropStalled();
}

void Server::accept(int listener, bool isControl)
{
  for (int i = 0; i < kAcceptsPerTurn; ++i) {
    int fd = ::accept4(listener, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (fd < 0)
      return;
    std::uint64_t id = ++lastId_;
    if ((!isControl && peers_.size() >= options_.maxClients) || !watch(fd, id)) {
      ::close(fd);
      continue;
    }
    peers_[id] = Entry{std::make_unique<Peer>(fd, id, isControl), EPOLLIN};
    if (isControl)
      continue;
    peers_[id].peer->attach(publisher_.file());
    if (world_.clientCame)
      world_.clientCame(id, processBehind(fd));
  }
}

void Server::serve(Peer &peer)
{
  bool hadHeld = peer.hasHeld();
  std::string_view text;
  bool tooLong = false;
  for (int i = 0; i < kFramesPerTurn && !peer.isFinishing() && !peer.isDelayed() && !peer.isSuspended() &&
                  peer.nextFrame(text, tooLong);
       ++i) {
    peer.consume(text);
    answerFrame(peer, text);
  }
  if (tooLong && !peer.isFinishing()) {
    // Where the next frame begins can't be known.
    appendErrors(peer.begin(), {kInvalidSyntax});
    peer.end(false);
    peer.finish();
  }
  if (peer.hasHeld() && !hadHeld)
    touched_.push_back(peer.id());
  if (peer.isSuspended())
    setInterest(peers_[peer.id()]);
  // With answers on their way, flush() is where it goes on.
  if (!peer.hasHeld() && !peer.isFinishing() && !peer.isSuspended() && peer.hasWholeFrame())
    backlog_.push_back(peer.id());
}

void Server::answerFrame(Peer &peer, std::string_view text)
{
  if (peer.isControl()) {
    answerCommand(peer, text);
    return;
  }
  if (!faults_.silent)
    answerRequest(peer, text, nullptr);
}

void Server::answerRequest(Peer &peer, std::string_view text, const PasswordWork *prepared)
{
  Request request;
  std::vector<Problem> problems;
  const Problem malformed = request.parse(text);
  PasswordWork work;
  if (!malformed && !prepared && PasswordDesk::workOf(world_, request, work)) {
    peer.suspend(text);
    desk_.submit({peer.id(), std::move(work)});
    return;
  }
  std::string &out = peer.begin();
  if (malformed)
    problems.push_back(malformed);
  else
    carryOut(request, peer, out, problems);
  if (!problems.empty())
    appendErrors(out, problems);
  peer.end(world_.store.hasUncommitted());
  if (faults_.cut > 0) {
    --faults_.cut;
    peer.cutInTheMiddle();
  }
}

void Server::carryOut(const Request &request, Peer &peer, std::string &out, std::vector<Problem> &problems)
{
  int delayMs = 0;
  if (Problem ordered = followOrders(faults_, request, world_.store, delayMs)) {
    problems.push_back(ordered);
  } else {
    if (request.method != Method::Get)
      problems = writer_.carryOut(request, peer.id(), out, delayMs);
    else if (Problem refused = reader_.answer(request, out))
      problems.push_back(refused);
    keepKnownDetails(problems);
  }
  peer.delay(std::chrono::milliseconds(delayMs));
}

void Server::takeUpSuspended()
{
  PasswordDesk::Piece piece;
  while (desk_.take(piece)) {
    auto entry = peers_.find(piece.client);
    if (entry == peers_.end() || !entry->second.peer->isSuspended())
      continue;
    Peer &peer = *entry->second.peer;
    const std::string text = peer.resume();
    const bool hadHeld = peer.hasHeld();
    const PreparedPassword prepared(&piece.work);
    answerRequest(peer, text, &piece.work);
    if (!hadHeld)
      touched_.push_back(peer.id());
  }
}

void Server::answerCommand(Peer &peer, std::string_view text)
{
  Json frame(zelwire::parseJson(text));
  std::vector<std::string> words;
  for (std::size_t i = 0; i < json_array_size(frame.get()); ++i)
    if (const char *word = json_string_value(json_array_get(frame.get(), i)))
      words.emplace_back(word);
  Outcome outcome = commands_.run(world_, words);
  std::string &out = peer.begin();
  out += outcome.failed ? "{\"failed\":true,\"text\":" : "{\"failed\":false,\"text\":";
  appendJsonText(out, outcome.text);
  out += '}';
  peer.end(world_.store.hasUncommitted());
}

void Server::commit()
{
  std::string problem;
  if (!world_.store.hasUncommitted() || world_.store.commit(problem))
    return;
  std::fprintf(stderr, "zelsim: cannot write to the database: %s\n", problem.c_str());
  std::string error;
  appendErrors(error, {kGeneralFailure});
  for (std::uint64_t id : touched_)
    if (auto entry = peers_.find(id); entry != peers_.end())
      entry->second.peer->replaceDependent(entry->second.peer->isControl()
                                               ? "{\"failed\":true,\"text\":\"cannot write to the database\"}"
                                               : std::string_view(error));
}

void Server::release()
{
  std::vector<std::uint64_t> touched;
  touched.swap(touched_);
  for (std::uint64_t id : touched) {
    auto entry = peers_.find(id);
    if (entry == peers_.end())
      continue;
    Peer &peer = *entry->second.peer;
    std::chrono::milliseconds delay = peer.takeDelay();
    if (!peer.isControl())
      delay += std::chrono::milliseconds(faults_.slowMs);
    peer.release(now_ + delay);
    if (delay.count() == 0) {
      flush(peer);
    } else {
      late_.push_back(id);
      setInterest(entry->second);
    }
  }
}

void Server::sendDue()
{
  if (late_.empty())
    return;
  std::vector<std::uint64_t> late;
  late.swap(late_);
  Time now = std::chrono::steady_clock::now();
  for (std::uint64_t id : late) {
    auto entry = peers_.find(id);
    if (entry == peers_.end())
      continue;
    if (entry->second.peer->due() <= now)
      flush(*entry->second.peer);
    else
      late_.push_back(id);
  }
}

void Server::flush(Peer &peer)
{
  std::uint64_t id = peer.id();
  if (!peer.flush(now_)) {
    drop(id);
    return;
  }
  setInterest(peers_[id]);
  if (peer.wantsToRead() && peer.hasWholeFrame())
    backlog_.push_back(id);
}

void Server::setInterest(Entry &entry)
{
  Peer &peer = *entry.peer;
  bool sends = peer.hasOutput() && peer.due() <= now_;
  std::uint32_t wanted = sends ? EPOLLOUT : peer.wantsToRead() ? EPOLLIN : 0u;
  if (wanted == entry.interest)
    return;
  epoll_event event{};
  event.events = wanted;
  event.data.u64 = peer.id();
  ::epoll_ctl(epoll_, EPOLL_CTL_MOD, peer.fd(), &event);
  entry.interest = wanted;
}

void Server::applyFaults()
{
  const bool open = !faults_.refuse && !faults_.dark;
  if (!open)
    closeDoor();
  std::string problem;
  if (open && listener_ < 0 && !openDoor(problem)) {
    std::fprintf(stderr, "zelsim: %s\n", problem.c_str());
    faults_.refuse = true;
  }
  if (faults_.drop)
    dropClients();
  // A jump of the clock may lead over a whole restart.
  if (restartsTold_ != faults_.restarts)
    tell("restarts");
  isDown_ = isDown_ || restartsTold_ != faults_.restarts;
  restartsTold_ = faults_.restarts;
  if (isDown_ && !faults_.dark)
    tell("ready");
  isDown_ = faults_.dark;
}

void Server::dropClients()
{
  faults_.drop = false;
  std::vector<std::uint64_t> clients;
  for (const auto &[id, entry] : peers_)
    if (!entry.peer->isControl())
      clients.push_back(id);
  for (std::uint64_t id : clients)
    drop(id);
}

void Server::dropStalled()
{
  if (now_ < nextStallCheck_)
    return;
  nextStallCheck_ = now_ + kStallCheckPeriod;
  std::vector<std::uint64_t> stalled;
  for (const auto &[id, entry] : peers_) {
    const Peer &peer = *entry.peer;
    if (peer.hasOutput() && peer.due() <= now_ && now_ - peer.stalledSince() > kLongestStall)
      stalled.push_back(id);
  }
  for (std::uint64_t id : stalled)
    drop(id);
}

void Server::drop(std::uint64_t id)
{
  const auto entry = peers_.find(id);
  if (entry == peers_.end())
    return;
  const bool isControl = entry->second.peer->isControl();
  publisher_.hangUp();
  peers_.erase(entry);
  desk_.cancel(id);
  if (!isControl && world_.clientGone)
    world_.clientGone(id);
}

} // namespace zelsim
