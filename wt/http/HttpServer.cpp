// SPDX-License-Identifier: MIT
#include "http/HttpServer.h"

#include "base/Log.h"
#include "http/HttpService.h"
#include "http/SocketChannel.h"
#include "http/SpoolFolder.h"
#include "http/TlsContext.h"

#include <algorithm>
#include <boost/asio/io_context.hpp>
#include <boost/asio/ip/tcp.hpp>
#include <boost/asio/post.hpp>
#include <boost/asio/steady_timer.hpp>
#include <csignal>
#include <list>
#include <sys/resource.h>
#include <thread>
#include <tuple>
#include <unordered_map>

namespace Wt
{
namespace Net
{

namespace
{

namespace asio = boost::asio;
using asio::ip::tcp;

constexpr std::chrono::seconds kSweepInterval{1};
constexpr std::chrono::milliseconds kAcceptPause{200};
constexpr std::chrono::milliseconds kFarewell{500};
constexpr rlim_t kWantedDescriptors = 8192;
constexpr std::size_t kDescriptorsForOthers = 64;

class AsioLoop : public NetworkLoop
{
public:
  explicit AsioLoop(asio::io_context &context) : context_(context) {}
  void post(std::function<void()> function) override { asio::post(context_, std::move(function)); }
  TimePoint now() const override { return std::chrono::steady_clock::now(); }

private:
  asio::io_context &context_;
};

/// Raises the limit of open files as far as allowed without privilege. Returns the limit.
std::size_t raiseDescriptorLimit()
{
  rlimit limit = {};
  if (::getrlimit(RLIMIT_NOFILE, &limit) != 0)
    return 1024;
  if (limit.rlim_cur < kWantedDescriptors && limit.rlim_cur < limit.rlim_max) {
    limit.rlim_cur = std::min(kWantedDescriptors, limit.rlim_max);
    if (::setrlimit(RLIMIT_NOFILE, &limit) != 0)
      ::getrlimit(RLIMIT_NOFILE, &limit);
  }
  return static_cast<std::size_t>(limit.rlim_cur);
}

std::string addressOf(const tcp::socket &socket)
{
  boost::system::error_code ec;
  const auto address = socket.remote_endpoint(ec).address();
  if (address.is_v6() && address.to_v6().is_v4_mapped())
    return asio::ip::make_address_v4(asio::ip::v4_mapped, address.to_v6()).to_string();
  return ec ? std::string() : address.to_string();
}

} // namespace

class HttpServer::Impl
{
public:
  Impl(HttpSettings given, Engine::SessionHost &sessions)
      : settings(std::move(given)), context(1),
        loop(context), service{loop,
                               sessions,
                               settings.staticListed ? Router(settings.staticPaths) : Router(),
                               StaticFiles(settings.documentRoot, settings.compression),
                               ScriptAsset(settings.compression),
                               AccessLog(settings.accessLog),
                               {},
                               {settings.maximumBody},
                               settings.behindProxy,
                               false,
                               {},
                               {},
                               {},
                               0},
        sweepTimer(context)
  {
    for (const std::string &path : settings.entryPoints)
      service.router.addEntryPoint(path);
  }

  struct Listener {
    HttpSettings::Endpoint endpoint;
    tcp::acceptor acceptor;
    asio::steady_timer pause;
  };

  HttpSettings settings;
  asio::io_context context;
  AsioLoop loop;
  HttpService service;
  asio::steady_timer sweepTimer;
  NetworkLoop::TimePoint nextSweep = NetworkLoop::TimePoint::max();
  std::list<Listener> listeners;
  std::shared_ptr<TlsContext> tls;
  std::unordered_map<SocketChannel *, std::shared_ptr<SocketChannel>> channels;
  std::unordered_map<std::string, std::size_t> perAddress;
  std::thread thread;
  bool stopping = false;

  bool open(std::string &error);
  void learnNames();
  bool openTls(std::string &error);
  bool listen(const HttpSettings::Endpoint &endpoint, std::string &error);
  bool bind(Listener &listener, const tcp::endpoint &where, boost::system::error_code &ec);
  void accept(Listener &listener);
  void accepted(Listener &listener, tcp::socket socket);
  bool makeRoom(const std::string &address);
  SocketChannel *dispensable(const std::string *address) const;
  void closed(SocketChannel &channel);
  void sweep();
  void planSweep();
  void shutDown();
  void run();
};

// Opening

/// From the start, and again with another certificate.
void HttpServer::Impl::learnNames()
{
  service.names = HostNames();
  for (const std::string &name : settings.names)
    service.names.add(name);
  if (tls)
    for (const std::string &name : tls->names())
      service.names.add(name);
}

bool HttpServer::Impl::openTls(std::string &error)
{
  const bool wanted = std::any_of(settings.endpoints.begin(), settings.endpoints.end(),
                                  [](const auto &endpoint) { return endpoint.tls; });
  if (!wanted)
    return true;
  const auto fresh = TlsContext::create(settings.certificateChain, settings.privateKey, error);
  if (!fresh)
    return false;
  tls = fresh;
  learnNames();
  // A browser that was told so never comes in the clear again, to any port of this host: only where nothing
  // here is served in the clear, at the usual port, under a certificate that others vouch for.
  service.strictTransport =
      !tls->isSelfSigned() &&
      std::all_of(settings.endpoints.begin(), settings.endpoints.end(),
                  [](const auto &endpoint) { return !endpoint.http && endpoint.port == 443; });
  return true;
}

bool HttpServer::Impl::bind(Listener &listener, const tcp::endpoint &where, boost::system::error_code &ec)
{
  tcp::acceptor &acceptor = listener.acceptor;
  acceptor.open(where.protocol(), ec);
  if (!ec)
    acceptor.set_option(tcp::acceptor::reuse_address(true), ec);
  if (!ec)
    acceptor.bind(where, ec);
  if (!ec)
    acceptor.listen(asio::socket_base::max_listen_connections, ec);
  if (!ec)
    acceptor.non_blocking(true, ec);
  return !ec;
}

bool HttpServer::Impl::listen(const HttpSettings::Endpoint &endpoint, std::string &error)
{
  boost::system::error_code ec;
  tcp::resolver resolver(context);
  const auto found = resolver.resolve(endpoint.address, std::to_string(endpoint.port),
                                      tcp::resolver::passive | tcp::resolver::numeric_service, ec);
  const std::string place = endpoint.address + " port " + std::to_string(endpoint.port);
  if (ec || found.empty()) {
    error = "The address \"" + endpoint.address + "\" is unknown: " + ec.message() + ".";
    return false;
  }
  listeners.push_back({endpoint, tcp::acceptor(context), asio::steady_timer(context)});
  if (bind(listeners.back(), found.begin()->endpoint(), ec))
    return true;
  const bool inUse = ec == asio::error::address_in_use;
  error = "Cannot listen at " + place + ": " +
          (inUse ? std::string("the port is in use by another program") : ec.message()) + ".";
  return false;
}

bool HttpServer::Impl::open(std::string &error)
{
  if (!service.accessLog.isUsable()) {
    error = "The access log \"" + settings.accessLog + "\" cannot be opened.";
    return false;
  }
  learnNames();
  if (!openTls(error))
    return false;
  SpoolFolder::removeLeft();
  for (const HttpSettings::Endpoint &endpoint : settings.endpoints)
    if (!listen(endpoint, error))
      return false;
  const std::size_t descriptors = raiseDescriptorLimit();
  // Each session may need a descriptor for the store beside the one for its page.
  const std::size_t affordable = descriptors > 2 * kDescriptorsForOthers
                                     ? (descriptors - kDescriptorsForOthers) / 2
                                     : kDescriptorsForOthers;
  settings.maximumConnections = std::min(settings.maximumConnections, affordable);
  // Whatever is wished for, one address leaves a quarter to others.
  settings.maximumPerAddress =
      std::min(settings.maximumPerAddress, std::max<std::size_t>(1, settings.maximumConnections * 3 / 4));
  return true;
}

// Connections

void HttpServer::Impl::accept(Listener &listener)
{
  listener.acceptor.async_accept([this, &listener](const boost::system::error_code &ec, tcp::socket socket) {
    if (stopping || ec == asio::error::operation_aborted)
      return;
    if (!ec) {
      accepted(listener, std::move(socket));
      accept(listener);
      return;
    }
    // Most likely there are no descriptors left; some are given back soon.
    makeRoom(std::string());
    listener.pause.expires_after(kAcceptPause);
    listener.pause.async_wait([this, &listener](const boost::system::error_code &waitEc) {
      if (!waitEc && !stopping)
        accept(listener);
    });
  });
}

/// The connection whose end harms least, of that address or of any; null if all belong to pages. It is of the
/// address that has most of those which could be closed, so that a flood from one place closes its own.
SocketChannel *HttpServer::Impl::dispensable(const std::string *address) const
{
  std::unordered_map<std::string, std::size_t> candidates;
  const auto isCandidate = [address](const SocketChannel &channel) {
    return !channel.isKnown() && (!address || channel.address() == *address);
  };
  for (const auto &entry : channels)
    if (isCandidate(*entry.first))
      ++candidates[entry.first->address()];
  SocketChannel *best = nullptr;
  const auto rank = [&candidates](const SocketChannel &channel) {
    return std::make_tuple(candidates[channel.address()], channel.isIdle(),
                           NetworkLoop::TimePoint::max() - channel.deadline());
  };
  for (const auto &entry : channels)
    if (isCandidate(*entry.first) && (!best || rank(*entry.first) > rank(*best)))
      best = entry.first;
  return best;
}

/// Makes sure that one more connection of that address may be had, at the cost of another if need be.
bool HttpServer::Impl::makeRoom(const std::string &address)
{
  const auto counted = perAddress.find(address);
  const bool tooManyOfIt = counted != perAddress.end() && counted->second >= settings.maximumPerAddress;
  if (!address.empty() && !tooManyOfIt && channels.size() < settings.maximumConnections)
    return true;
  SocketChannel *victim = dispensable(tooManyOfIt ? &address : nullptr);
  if (victim)
    victim->abort();
  return victim != nullptr;
}

void HttpServer::Impl::accepted(Listener &listener, tcp::socket socket)
{
  const std::string address = addressOf(socket);
  if (address.empty() || !makeRoom(address))
    return;
  const auto mode = !listener.endpoint.tls   ? SocketChannel::Mode::Plain
                    : listener.endpoint.http ? SocketChannel::Mode::Either
                                             : SocketChannel::Mode::Tls;
  const auto channel = std::make_shared<SocketChannel>(service, std::move(socket), address, mode, tls);
  channels.emplace(channel.get(), channel);
  ++perAddress[address];
  channel->start([this](SocketChannel &over) { closed(over); });
  planSweep();
}

void HttpServer::Impl::closed(SocketChannel &channel)
{
  const auto counted = perAddress.find(channel.address());
  if (counted != perAddress.end() && --counted->second == 0)
    perAddress.erase(counted);
  channels.erase(&channel);
  if (stopping && channels.empty())
    context.stop();
}

// Deadlines

/// Nothing is due earlier than the shortest limit after now, so that one look a second, and none while all
/// connections rest, is enough.
void HttpServer::Impl::planSweep()
{
  const auto soon = loop.now() + kSweepInterval;
  if (channels.empty() || nextSweep <= soon)
    return;
  nextSweep = soon;
  sweepTimer.expires_at(soon);
  sweepTimer.async_wait([this](const boost::system::error_code &ec) {
    if (!ec)
      sweep();
  });
}

void HttpServer::Impl::sweep()
{
  const auto now = loop.now();
  std::vector<std::shared_ptr<SocketChannel>> due;
  for (const auto &entry : channels)
    if (entry.second->deadline() <= now)
      due.push_back(entry.second);
  for (const auto &channel : due)
    channel->expired();
  nextSweep = NetworkLoop::TimePoint::max();
  planSweep();
}

// Running

void HttpServer::Impl::run()
{
  for (;;) {
    try {
      context.run();
      return;
    } catch (const std::exception &e) {
      Engine::log(Engine::LogLevel::Error, "http",
                  std::string("The network thread goes on after an exception: ") + e.what());
    }
  }
}

void HttpServer::Impl::shutDown()
{
  stopping = true;
  boost::system::error_code ec;
  for (Listener &listener : listeners) {
    listener.acceptor.close(ec);
    listener.pause.cancel();
  }
  sweepTimer.cancel();
  std::vector<std::shared_ptr<SocketChannel>> all;
  for (const auto &entry : channels)
    all.push_back(entry.second);
  for (const auto &channel : all)
    channel->shutDown();
  if (channels.empty()) {
    context.stop();
    return;
  }
  sweepTimer.expires_after(kFarewell);
  sweepTimer.async_wait([this](const boost::system::error_code &waitEc) {
    if (!waitEc)
      context.stop();
  });
}

HttpServer::HttpServer(HttpSettings settings, Engine::SessionHost &sessions)
    : impl_(std::make_unique<Impl>(std::move(settings), sessions))
{
}

HttpServer::~HttpServer()
{
  stop();
}

bool HttpServer::start(std::string &error)
{
  if (!impl_->open(error)) {
    impl_->listeners.clear();
    return false;
  }
  for (Impl::Listener &listener : impl_->listeners)
    impl_->accept(listener);
  // Signals are for the program's own threads.
  sigset_t all;
  sigset_t former;
  sigfillset(&all);
  pthread_sigmask(SIG_SETMASK, &all, &former);
  impl_->thread = std::thread([impl = impl_.get()] { impl->run(); });
  pthread_sigmask(SIG_SETMASK, &former, nullptr);
  return true;
}

void HttpServer::stop()
{
  if (!impl_->thread.joinable())
    return;
  asio::post(impl_->context, [impl = impl_.get()] { impl->shutDown(); });
  impl_->thread.join();
  // Whoever has not taken the farewell is cut off; what still waits for a socket then ends at once.
  for (const auto &entry : impl_->channels)
    entry.second->abort();
  impl_->context.restart();
  impl_->context.poll();
  impl_->listeners.clear();
  SpoolFolder::instance().leave();
}

unsigned short HttpServer::port(std::size_t endpoint) const
{
  boost::system::error_code ec;
  const auto listener = std::next(impl_->listeners.begin(), static_cast<std::ptrdiff_t>(endpoint));
  return listener->acceptor.local_endpoint(ec).port();
}

void HttpServer::reload()
{
  asio::post(impl_->context, [impl = impl_.get()] {
    impl->service.accessLog.reopen();
    std::string error;
    if (!impl->openTls(error))
      Engine::log(Engine::LogLevel::Error, "http", error + " The former certificate stays in use.");
  });
}

void HttpServer::setMaximumBody(std::uint64_t bytes)
{
  impl_->service.maximumBody = bytes;
}

} // namespace Net
} // namespace Wt
