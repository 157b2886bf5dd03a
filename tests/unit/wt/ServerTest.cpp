// SPDX-License-Identifier: MIT
#include "HttpTestCertificate.h"
#include "HttpTestClient.h"
#include "HttpTestFolder.h"
#include "base/Log.h"
#include "testing/MemoryNetwork.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WEnvironment>
#include <Wt/WFileResource>
#include <Wt/WIOService>
#include <Wt/WMessageResourceBundle>
#include <Wt/WServer>
#include <Wt/WText>
#include <atomic>
#include <csignal>
#include <filesystem>
#include <functional>
#include <future>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <pthread.h>
#include <thread>

using namespace Wt;
using Testing::clientFrame;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Testing::webSocketRequest;

namespace
{

std::atomic<int> applications{0};
std::function<void(WApplication &)> build;

class TestApplication : public WApplication
{
public:
  explicit TestApplication(const WEnvironment &environment) : WApplication(environment)
  {
    ++applications;
    if (build)
      build(*this);
  }
  ~TestApplication() override { --applications; }
};

class WaitingResource : public WResource
{
public:
  explicit WaitingResource(std::function<void()> wait, WObject *parent = nullptr)
      : WResource(parent), wait_(std::move(wait))
  {
  }
  ~WaitingResource() override { beingDeleted(); }
  void handleRequest(const Http::Request &, Http::Response &) override { wait_(); }

private:
  std::function<void()> wait_;
};

WApplication *create(const WEnvironment &environment)
{
  return new TestApplication(environment);
}

/// The arguments of a main function.
class Arguments
{
public:
  explicit Arguments(std::vector<std::string> words) : words_(std::move(words))
  {
    words_.insert(words_.begin(), "program");
    for (std::string &word : words_)
      pointers_.push_back(&word[0]);
  }
  int count() const { return static_cast<int>(pointers_.size()); }
  char **values() { return pointers_.data(); }

private:
  std::vector<std::string> words_;
  std::vector<char *> pointers_;
};

class ServerTest : public testing::Test
{
protected:
  HttpTestFolder folder;

  void TearDown() override { build = nullptr; }

  std::vector<std::string> options(std::vector<std::string> more = {}) const
  {
    std::vector<std::string> all = {"--docroot=" + folder.path(), "--http-address=127.0.0.1", "--http-port=0",
                                    "--accesslog=-"};
    all.insert(all.end(), more.begin(), more.end());
    return all;
  }

  static void configure(WServer &server, std::vector<std::string> words)
  {
    Arguments arguments(std::move(words));
    server.setServerConfiguration(arguments.count(), arguments.values(), "");
  }

  static std::string complaint(const std::function<void()> &action)
  {
    testing::internal::CaptureStderr();
    std::string what = "no exception";
    try {
      action();
    } catch (const WServer::Exception &e) {
      what = e.what();
    }
    // Whoever catches it tells it, once.
    EXPECT_THAT(testing::internal::GetCapturedStderr(), Not(HasSubstr(what)));
    return what;
  }
};

/// A page that has said hello, and has heard that text.
std::unique_ptr<HttpTestClient> openPage(int port, const std::string &until = "\"o\":")
{
  auto page = std::make_unique<HttpTestClient>(static_cast<unsigned short>(port));
  page->say(webSocketRequest("localhost", "http://localhost"));
  page->hearUntil("\r\n\r\n");
  page->say(clientFrame(1, R"({"hello":{"query":"","tz":0,"w":800,"h":600,"lang":"en"}})"));
  EXPECT_THAT(page->hearUntil(until), HasSubstr(until));
  return page;
}

} // namespace

TEST_F(ServerTest, theConfigurationFileLimitsThePagesThatOneAddressMayOpen)
{
  const std::string file = folder.write("limits.xml", R"(<server><application-settings location="*">
      <session-management>
        <new-sessions-per-address>2</new-sessions-per-address>
        <new-sessions-interval>3600</new-sessions-interval>
      </session-management>
    </application-settings></server>)");
  WServer server("program");
  configure(server, options({"--config=" + file}));
  server.addEntryPoint(Application, create);
  ASSERT_TRUE(server.start());
  const auto first = openPage(server.httpPort());
  const auto second = openPage(server.httpPort());
  const auto refused = openPage(server.httpPort(), "\"busy\":");
  EXPECT_EQ(applications, 2);
}

TEST_F(ServerTest, aPageThatGetsNoSessionIsToldInTheWordsOfTheServersStrings)
{
  folder.write("words.xml", R"(<messages><message id="Wt.Page.Full">Alles besetzt</message></messages>)");
  const std::string limits = folder.write("limits.xml", R"(<server><application-settings location="*">
      <session-management><dedicated-process><max-num-sessions>1</max-num-sessions></dedicated-process>
      </session-management></application-settings></server>)");
  build = [](WApplication &application) { new WText("in", application.root()); };
  WServer server("program");
  auto *words = new WMessageResourceBundle();
  words->use(folder / "words");
  server.setLocalizedStrings(words);
  EXPECT_EQ(server.localizedStrings(), words);
  configure(server, options({"--config=" + limits}));
  server.addEntryPoint(Application, create);
  ASSERT_TRUE(server.start());
  const auto first = openPage(server.httpPort());
  openPage(server.httpPort(), "{\"busy\":\"Alles besetzt\"}");
}

TEST_F(ServerTest, theConfigurationFileLimitsTheConnections)
{
  const std::string limits[] = {"<max-connections>3</max-connections>", // of which one address has two
                                "<max-connections-per-address>2</max-connections-per-address>"};
  for (const std::string &limit : limits) {
    const std::string file = folder.write("limits.xml", "<server><application-settings location=\"*\">" +
                                                            limit + "</application-settings></server>");
    WServer server("program");
    configure(server, options({"--config=" + file}));
    server.addEntryPoint(Application, create);
    ASSERT_TRUE(server.start());
    const auto first = openPage(server.httpPort());
    const auto second = openPage(server.httpPort());
    HttpTestClient third(static_cast<unsigned short>(server.httpPort()));
    EXPECT_TRUE(third.isClosed()) << limit;
  }
}

TEST_F(ServerTest, aPageIsServedAndItsSessionLivesAndDiesWithIt)
{
  build = [](WApplication &application) { new WText("Welcome home", application.root()); };
  WServer server("program");
  EXPECT_EQ(WServer::instance(), &server);
  configure(server, options());
  server.addEntryPoint(Application, create, "", "icon.ico");
  EXPECT_FALSE(server.isRunning());
  ASSERT_TRUE(server.start());
  EXPECT_TRUE(server.isRunning());
  EXPECT_FALSE(server.start());
  ASSERT_GT(server.httpPort(), 0);
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  EXPECT_THAT(client.get("/"), HasSubstr("icon.ico"));
  EXPECT_EQ(applications, 0);
  auto page = openPage(server.httpPort(), "Welcome home");
  EXPECT_EQ(applications, 1);
  EXPECT_TRUE(server.expireSessions());
  server.stop();
  EXPECT_EQ(applications, 0);
  EXPECT_FALSE(server.isRunning());
  EXPECT_FALSE(server.expireSessions());
}

TEST_F(ServerTest, aStoppedServerMayBeStartedAgain)
{
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  for (int i = 0; i < 3; ++i) {
    ASSERT_TRUE(server.start());
    auto page = openPage(server.httpPort());
    EXPECT_EQ(applications, 1);
    server.stop();
    EXPECT_EQ(applications, 0);
  }
}

TEST_F(ServerTest, aDestroyedServerStopsAndIsNoInstance)
{
  {
    WServer server;
    configure(server, options());
    server.addEntryPoint(Application, create);
    server.start();
    auto page = openPage(server.httpPort());
  }
  EXPECT_EQ(applications, 0);
  EXPECT_EQ(WServer::instance(), nullptr);
}

TEST_F(ServerTest, functionsArePostedIntoASession)
{
  std::string id;
  build = [&id](WApplication &application) { id = application.sessionId(); };
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  auto page = openPage(server.httpPort());
  std::promise<bool> ran;
  server.post(id, [&ran] { ran.set_value(WApplication::instance() != nullptr); });
  server.post("nobody", [] { FAIL(); });
  EXPECT_TRUE(ran.get_future().get());
  server.stop();
}

TEST_F(ServerTest, scheduledFunctionsRunWithoutASession)
{
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  std::promise<bool> ran;
  server.ioService().schedule(5, [&ran] { ran.set_value(WApplication::instance() == nullptr); });
  EXPECT_TRUE(ran.get_future().get());
  server.stop();
}

TEST_F(ServerTest, whatIsWrongIsToldInAnException)
{
  WServer server;
  EXPECT_THAT(complaint([&] { configure(server, {"--http-address=a"}); }), HasSubstr("--docroot"));
  EXPECT_THAT(complaint([&] {
                configure(server, {"--docroot=/none", "--http-address=a"});
              }),
              HasSubstr("/none"));
  EXPECT_THAT(complaint([&] { configure(server, {"--docroot=/"}); }), HasSubstr("--http-address"));
  EXPECT_THAT(complaint([&] { configure(server, options({"--config=/none.xml"})); }), HasSubstr("/none.xml"));
}

TEST_F(ServerTest, aPortInUseAndABadCertificateAreToldByStart)
{
  HttpTestFolder other;
  WServer first;
  configure(first, options());
  first.addEntryPoint(Application, create);
  first.start();
  WServer second;
  configure(second, options({"--http-port=" + std::to_string(first.httpPort())}));
  second.addEntryPoint(Application, create);
  EXPECT_THAT(complaint([&] { second.start(); }), HasSubstr("in use"));
  EXPECT_FALSE(second.isRunning());
  const std::string certificate = folder.write("cert.pem", "nothing");
  const std::string key = folder.write("key.pem", "nothing");
  ::chmod(key.c_str(), 0600);
  configure(second, options({"--https-address=127.0.0.1", "--https-port=0",
                             "--ssl-certificate=" + certificate, "--ssl-private-key=" + key}));
  EXPECT_THAT(complaint([&] { second.start(); }), HasSubstr("cert.pem"));
  first.stop();
}

TEST_F(ServerTest, helpEndsWithAnEmptyException)
{
  WServer server;
  testing::internal::CaptureStdout();
  try {
    configure(server, {"--help"});
    FAIL();
  } catch (const WServer::Exception &e) {
    EXPECT_STREQ(e.what(), "");
  }
  EXPECT_THAT(testing::internal::GetCapturedStdout(), HasSubstr("--docroot"));
}

TEST_F(ServerTest, unknownOptionsAreNamedOnStandardErrorAndInTheLogAndDoNotStop)
{
  std::string logged;
  Engine::setLogSink(
      [&logged](Engine::LogLevel, std::string_view, std::string_view text) { logged += text; });
  testing::internal::CaptureStderr();
  WServer server;
  configure(server, options({"--colour", "red", "--strange=1"}));
  Engine::setLogSink({});
  const std::string told = testing::internal::GetCapturedStderr();
  for (const std::string &text : {told, logged}) {
    EXPECT_THAT(text, HasSubstr("--colour"));
    EXPECT_THAT(text, HasSubstr("--strange"));
  }
}

TEST_F(ServerTest, anEntryPointBeginsWithASlash)
{
  WServer server;
  configure(server, options());
  EXPECT_THROW(server.addEntryPoint(Application, create, "app"), WServer::Exception);
}

TEST_F(ServerTest, entryPointsOfAnEmptyPathAreAtTheDeploymentPath)
{
  WServer server;
  configure(server, options({"--deploy-path=/switch"}));
  server.addEntryPoint(Application, create);
  server.start();
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  EXPECT_THAT(client.get("/switch"), StartsWith("HTTP/1.1 200"));
  EXPECT_THAT(client.get("/"), StartsWith("HTTP/1.1 404"));
  server.stop();
}

TEST_F(ServerTest, thePidFileLivesAsLongAsTheServer)
{
  const std::string file = folder / "pid";
  {
    WServer server;
    configure(server, options({"--pid-file", file}));
    EXPECT_EQ(readFile(file), std::to_string(::getpid()) + "\n");
  }
  EXPECT_EQ(readFile(file), "");
}

TEST_F(ServerTest, theThreeArgumentFormIsConfiguredAtOnce)
{
  Arguments arguments(options());
  WServer server(arguments.count(), arguments.values());
  server.addEntryPoint(Application, create);
  EXPECT_TRUE(server.start());
  server.stop();
}

TEST_F(ServerTest, waitForShutdownGoesOnAfterAHangupAndTellsTheSignal)
{
  sigset_t signals;
  sigemptyset(&signals);
  for (const int signal : {SIGHUP, SIGINT, SIGQUIT, SIGTERM})
    sigaddset(&signals, signal);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  std::atomic<int> got{0};
  std::thread waiter([&got] { got = WServer::waitForShutdown(0); });
  pthread_kill(waiter.native_handle(), SIGHUP);
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  EXPECT_THAT(client.get("/"), StartsWith("HTTP/1.1 200"));
  EXPECT_EQ(got, 0);
  pthread_kill(waiter.native_handle(), SIGTERM);
  waiter.join();
  EXPECT_EQ(got, SIGTERM);
  server.stop();
}

TEST_F(ServerTest, aSessionsFileIsDownloadedWithItsNameAndNotWithoutItsSession)
{
  const std::string file = folder.write("settings", "0123456789");
  std::string url;
  build = [&](WApplication &application) {
    auto *resource = new WFileResource(&application);
    resource->setMimeType("application/gzip");
    resource->setFileName(file);
    resource->suggestFileName("settings.tar.gz");
    url = resource->url();
  };
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  auto page = openPage(server.httpPort());
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  const std::string whole = client.get(url);
  EXPECT_THAT(whole, StartsWith("HTTP/1.1 200"));
  EXPECT_THAT(whole, HasSubstr("Content-Disposition: attachment; filename=\"settings.tar.gz\"\r\n"));
  EXPECT_THAT(whole, HasSubstr("Content-Type: application/gzip\r\n"));
  EXPECT_THAT(whole, HasSubstr("\r\n\r\n0123456789"));
  EXPECT_THAT(client.get(url, "Range: bytes=2-3\r\n"), HasSubstr("\r\n\r\n23"));
  EXPECT_THAT(client.get(url + "x"), StartsWith("HTTP/1.1 404"));
  folder.write("settings", "");
  std::filesystem::remove(file);
  EXPECT_THAT(client.get(url), StartsWith("HTTP/1.1 404"));
  folder.write("settings", "again");
  page->say(clientFrame(8, std::string("\x0f\xa0", 2)));
  page->hearAll();
  while (applications > 0)
    std::this_thread::yield();
  EXPECT_THAT(client.get(url), StartsWith("HTTP/1.1 404"));
  server.stop();
}

TEST_F(ServerTest, destroyingAResourceWaitsForItsRequest)
{
  std::promise<void> entered;
  std::promise<void> release;
  std::promise<void> gone;
  std::atomic<bool> destroyed{false};
  std::atomic<bool> early{false};
  WaitingResource *resource = nullptr;
  std::string url;
  std::string id;
  build = [&](WApplication &application) {
    id = application.sessionId();
    resource = new WaitingResource([&, released = release.get_future().share()] {
      entered.set_value();
      released.wait();
      early = destroyed.load();
    });
    url = resource->url();
  };
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  auto page = openPage(server.httpPort());
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  client.say("GET " + url + " HTTP/1.1\r\nHost: localhost\r\n\r\n");
  entered.get_future().wait();
  server.post(id, [&] {
    std::thread([&release] { release.set_value(); }).detach();
    delete resource;
    destroyed = true;
    gone.set_value();
  });
  gone.get_future().wait();
  EXPECT_FALSE(early);
  EXPECT_THAT(client.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 200"));
  EXPECT_THAT(client.get(url), StartsWith("HTTP/1.1 404"));
  server.stop();
}

TEST_F(ServerTest, aHandlerThatIsHeldUpDelaysNoOtherPage)
{
  std::promise<void> release;
  std::string url;
  build = [&](WApplication &application) {
    new WText("Welcome home", application.root());
    if (url.empty())
      url =
          (new WaitingResource([released = release.get_future().share()] { released.wait(); }, &application))
              ->url();
  };
  WServer server;
  configure(server, options());
  server.addEntryPoint(Application, create);
  server.start();
  auto held = openPage(server.httpPort());
  HttpTestClient client(static_cast<unsigned short>(server.httpPort()));
  client.say("GET " + url + " HTTP/1.1\r\nHost: localhost\r\n\r\n");
  for (int i = 0; i < 5; ++i)
    auto page = openPage(server.httpPort(), "Welcome home");
  release.set_value();
  EXPECT_THAT(client.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 200"));
  server.stop();
}
