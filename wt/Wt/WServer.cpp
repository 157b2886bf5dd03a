// SPDX-License-Identifier: MIT
#include "WServer.h"

#include "base/HeapWatch.h"
#include "base/Log.h"
#include "http/HttpServer.h"
#include "http/PoolScheduler.h"
#include "http/ScriptAsset.h"
#include "http/ServerConfiguration.h"
#include "session/SessionManager.h"

#include <atomic>
#include <csignal>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <unistd.h>
#include <vector>

namespace Wt
{

namespace
{

constexpr int kReaperMilliseconds = 5000;
// Two arenas serve the network thread and the workers; more would only spread the free memory.
constexpr int kMallocArenas = 2;
constexpr int kMallocTrim = 256 * 1024;

std::atomic<WServer *> theServer{nullptr};

/// Tells the person at the terminal and the log.
void tell(Engine::LogLevel level, const std::string &text)
{
  if (Engine::hasLogSink())
    std::fprintf(stderr, "%s\n", text.c_str());
  Engine::log(level, "server", text);
}

} // namespace

struct WServer::Impl {
  std::string applicationPath;
  std::string configurationFile;
  Net::ServerConfiguration configuration;
  bool configured = false;
  std::vector<Engine::EntryPoint> entryPoints;
  std::unique_ptr<WIOService> ioService;
  std::unique_ptr<Engine::PoolScheduler> scheduler;
  std::shared_ptr<Engine::SessionManager> sessions;
  std::unique_ptr<Net::HttpServer> http;
  Engine::HeapWatch heap;
  bool pidWritten = false;
  std::unique_ptr<WLocalizedStrings> strings;

  void writePidFile();
  Net::HttpSettings httpSettings() const;
  Engine::SessionConfig sessionConfig() const;
};

WServer::Exception::Exception(const std::string &what) : WException(what) {}

void WServer::Impl::writePidFile()
{
  if (configuration.pidFile.empty())
    return;
  std::ofstream file(configuration.pidFile);
  file << ::getpid() << '\n';
  file.close();
  if (!file)
    throw Exception("The pid file \"" + configuration.pidFile + "\" cannot be written.");
  pidWritten = true;
}

Net::HttpSettings WServer::Impl::httpSettings() const
{
  const Net::ServerConfiguration &from = configuration;
  Net::HttpSettings settings;
  const bool shared = !from.httpAddress.empty() && from.httpAddress == from.httpsAddress &&
                      from.httpPortNumber == from.httpsPortNumber && from.httpPortNumber != 0;
  if (!from.httpAddress.empty())
    settings.endpoints.push_back({from.httpAddress, from.httpPortNumber, true, shared});
  if (!from.httpsAddress.empty() && !shared)
    settings.endpoints.push_back({from.httpsAddress, from.httpsPortNumber, false, true});
  settings.certificateChain = from.sslCertificate;
  settings.privateKey = from.sslPrivateKey;
  settings.documentRoot = from.documentRoot;
  settings.staticListed = from.staticListed;
  settings.staticPaths = from.staticPaths;
  for (const Engine::EntryPoint &entryPoint : entryPoints)
    settings.entryPoints.push_back(entryPoint.path);
  settings.names = from.names();
  settings.accessLog = from.accessLog;
  settings.compression = from.compression;
  settings.behindProxy = from.behindProxy;
  settings.maximumBody = static_cast<std::uint64_t>(from.maximumRequestSize);
  if (from.maximumConnections)
    settings.maximumConnections = static_cast<std::size_t>(*from.maximumConnections);
  if (from.connectionsPerAddress)
    settings.maximumPerAddress = static_cast<std::size_t>(*from.connectionsPerAddress);
  return settings;
}

Engine::SessionConfig WServer::Impl::sessionConfig() const
{
  Engine::SessionConfig config;
  config.timeout = std::chrono::seconds(configuration.timeout);
  config.maxRequestSize = configuration.maximumRequestSize;
  config.scriptVersion = Net::ScriptAsset::version();
  if (configuration.maximumSessions)
    config.maxSessions = static_cast<std::size_t>(*configuration.maximumSessions);
  if (configuration.newSessionsPerAddress)
    config.maxNewSessionsPerAddress = static_cast<std::size_t>(*configuration.newSessionsPerAddress);
  if (configuration.newSessionsInterval)
    config.newSessionsInterval = std::chrono::seconds(*configuration.newSessionsInterval);
  return config;
}

WServer::WServer(const std::string &wtApplicationPath, const std::string &wtConfigurationFile)
    : impl_(std::make_unique<Impl>())
{
  ::mallopt(M_ARENA_MAX, kMallocArenas);
  ::mallopt(M_TRIM_THRESHOLD, kMallocTrim);
  impl_->applicationPath = wtApplicationPath;
  impl_->configurationFile = wtConfigurationFile;
  theServer = this;
}

WServer::WServer(int argc, char *argv[], const std::string &wtConfigurationFile)
    : WServer(argc > 0 ? argv[0] : "", wtConfigurationFile)
{
  setServerConfiguration(argc, argv);
}

WServer::~WServer()
{
  if (isRunning())
    stop();
  if (impl_->ioService)
    impl_->ioService->stop();
  if (impl_->pidWritten)
    ::unlink(impl_->configuration.pidFile.c_str());
  WServer *self = this;
  theServer.compare_exchange_strong(self, nullptr);
}

WServer *WServer::instance()
{
  return theServer;
}

// The file would hold options of the command line; here they are given on the command line only.
void WServer::setServerConfiguration(int argc, char *argv[], const std::string &)
{
  Net::ServerConfiguration configuration;
  configuration.parseArguments(argc > 1 ? std::vector<std::string>(argv + 1, argv + argc)
                                        : std::vector<std::string>());
  if (configuration.help) {
    std::fputs(Net::ServerConfiguration::helpText().c_str(), stdout);
    throw Exception("");
  }
  std::string unknown;
  for (const std::string &option : configuration.unknown)
    unknown += (unknown.empty() ? "" : ", ") + option;
  if (!unknown.empty())
    tell(Engine::LogLevel::Warning, "Unknown on the command line, and ignored: " + unknown);
  std::string error;
  if (!configuration.readFile(impl_->configurationFile, impl_->applicationPath, error) ||
      !configuration.check(error))
    throw Exception(error);
  impl_->configuration = configuration;
  impl_->configured = true;
  impl_->writePidFile();
}

void WServer::addEntryPoint(EntryPointType type, ApplicationCreator callback, const std::string &path,
                            const std::string &favicon)
{
  if (type != Application)
    throw Exception("Only entry points of the type Application are supported.");
  const std::string where = path.empty() ? impl_->configuration.deployPath : path;
  if (where[0] != '/')
    throw Exception("The entry point \"" + where + "\" must begin with a slash.");
  impl_->entryPoints.push_back({where, favicon, callback});
}

bool WServer::start()
{
  if (isRunning()) {
    Engine::log(Engine::LogLevel::Error, "server", "The server was started while it runs.");
    return false;
  }
  if (!impl_->configured)
    throw Exception("The server was started without a configuration.");
  WIOService &service = ioService();
  impl_->scheduler = std::make_unique<Engine::PoolScheduler>(service);
  Engine::SessionConfig config = impl_->sessionConfig();
  config.server = this;
  impl_->sessions = std::make_shared<Engine::SessionManager>(*impl_->scheduler, std::move(config));
  for (const Engine::EntryPoint &entryPoint : impl_->entryPoints)
    impl_->sessions->addEntryPoint(entryPoint);
  auto http = std::make_unique<Net::HttpServer>(impl_->httpSettings(), *impl_->sessions);
  std::string error;
  if (!http->start(error)) {
    impl_->sessions.reset();
    throw Exception(error);
  }
  service.start();
  impl_->http = std::move(http);
  reap();
  return true;
}

/// Looks for dead sessions now and then, for programs that do not do so themselves, and gives the system back
/// what the ended ones have left free.
void WServer::reap()
{
  impl_->scheduler->after(std::chrono::milliseconds(kReaperMilliseconds), [this] {
    expireSessions();
    if (impl_->heap.freed(::mallinfo2().fordblks))
      ::malloc_trim(0);
    reap();
  });
}

void WServer::stop()
{
  if (!isRunning()) {
    Engine::log(Engine::LogLevel::Error, "server", "The server was stopped while it does not run.");
    return;
  }
  impl_->sessions->stop();
  impl_->http->stop();
  impl_->ioService->stop();
  impl_->http.reset();
  impl_->sessions.reset();
}

bool WServer::isRunning() const
{
  return impl_->http != nullptr;
}

int WServer::httpPort() const
{
  return impl_->http ? impl_->http->port(0) : -1;
}

int WServer::waitForShutdown(const char *)
{
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
    sigaddset(&signals, signal);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  for (;;) {
    int signal = 0;
    if (sigwait(&signals, &signal) != 0)
      continue;
    if (signal != SIGHUP)
      return signal;
    if (WServer *server = instance())
      server->reload();
  }
}

void WServer::reload()
{
  Engine::log(Engine::LogLevel::Info, "server", "Reading the configuration anew.");
  Net::ServerConfiguration fresh = impl_->configuration;
  std::string error;
  if (!fresh.readFile(impl_->configurationFile, impl_->applicationPath, error)) {
    Engine::log(Engine::LogLevel::Error, "server", error);
    return;
  }
  if (!impl_->http)
    return;
  impl_->http->setMaximumBody(static_cast<std::uint64_t>(fresh.maximumRequestSize));
  impl_->http->reload();
}

bool WServer::expireSessions()
{
  return impl_->sessions && impl_->sessions->expireSessions();
}

void WServer::setLocalizedStrings(WLocalizedStrings *strings)
{
  impl_->strings.reset(strings);
}

WLocalizedStrings *WServer::localizedStrings() const
{
  return impl_->strings.get();
}

WIOService &WServer::ioService()
{
  if (!impl_->ioService) {
    impl_->ioService = std::make_unique<WIOService>();
    impl_->ioService->setThreadCount(impl_->configuration.threadCount);
  }
  return *impl_->ioService;
}

void WServer::post(const std::string &sessionId, const boost::function<void()> &function)
{
  if (impl_->sessions)
    impl_->sessions->post(sessionId, function);
}

Engine::SessionManager *WServer::sessions() const
{
  return impl_->sessions.get();
}

} // namespace Wt
