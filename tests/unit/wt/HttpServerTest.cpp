// SPDX-License-Identifier: MIT
#include "http/HttpServer.h"

#include "HttpTestCertificate.h"
#include "HttpTestClient.h"
#include "HttpTestFolder.h"
#include "testing/MemoryNetwork.h"

#include <atomic>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <thread>

using namespace Wt;
using Net::HttpServer;
using Net::HttpSettings;
using Testing::clientFrame;
using Testing::FakeSessions;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using Testing::webSocketRequest;

namespace
{

class HttpServerTest : public testing::Test
{
protected:
  HttpTestFolder folder;
  FakeSessions sessions;
  std::unique_ptr<HttpServer> server;

  HttpSettings settings(bool http, bool tls)
  {
    HttpSettings settings;
    settings.endpoints = {{"127.0.0.1", 0, http, tls}};
    settings.documentRoot = folder.path();
    settings.entryPoints = {"/"};
    settings.accessLog = "-";
    if (tls) {
      settings.certificateChain = folder / "cert.pem";
      settings.privateKey = folder / "key.pem";
      writeCertificate(settings.certificateChain, settings.privateKey, "localhost");
    }
    return settings;
  }

  unsigned short start(const HttpSettings &chosen)
  {
    server = std::make_unique<HttpServer>(chosen, sessions);
    std::string error;
    EXPECT_TRUE(server->start(error)) << error;
    return server->port(0);
  }

  void TearDown() override
  {
    if (server)
      server->stop();
  }
};

std::string bodyOf(const std::string &response)
{
  return response.substr(std::min(response.size(), response.find("\r\n\r\n") + 4));
}

} // namespace

TEST_F(HttpServerTest, filesAndPagesAreServedOverOneConnection)
{
  folder.write("a.txt", "hello");
  HttpTestClient client(start(settings(true, false)));
  EXPECT_EQ(bodyOf(client.get("/a.txt")), "hello");
  EXPECT_EQ(bodyOf(client.get("/")), "<!DOCTYPE html><title>page</title>");
  EXPECT_THAT(client.get("/none"), StartsWith("HTTP/1.1 404"));
}

TEST_F(HttpServerTest, aLargeFileArrivesWhole)
{
  std::string large(5 * 1024 * 1024, '\0');
  for (std::size_t i = 0; i < large.size(); ++i)
    large[i] = static_cast<char>(i * 31 >> 3);
  folder.write("large.bin", large);
  for (const auto kind : {HttpTestClient::Plain, HttpTestClient::Tls}) {
    HttpTestClient client(start(settings(kind == HttpTestClient::Plain, kind == HttpTestClient::Tls)), kind);
    EXPECT_TRUE(bodyOf(client.get("/large.bin")) == large);
  }
}

TEST_F(HttpServerTest, onePortServesBothAndOnlyModernTls)
{
  const unsigned short port = start(settings(true, true));
  HttpTestClient plain(port);
  EXPECT_THAT(plain.get("/"), StartsWith("HTTP/1.1 307"));
  HttpTestClient secure(port, HttpTestClient::Tls);
  ASSERT_TRUE(secure.connected());
  EXPECT_THAT(secure.tlsVersion(), testing::AnyOf("TLSv1.2", "TLSv1.3"));
  EXPECT_THAT(secure.get("/"), StartsWith("HTTP/1.1 200"));
  EXPECT_THAT(secure.get("/"), Not(HasSubstr("Strict-Transport-Security")));
}

TEST_F(HttpServerTest, plainTextAtATlsPortIsClosed)
{
  HttpTestClient plain(start(settings(false, true)));
  plain.say("GET / HTTP/1.1\r\nHost: localhost\r\n\r\n");
  EXPECT_THAT(plain.hearAll(), Not(HasSubstr("200 OK")));
}

TEST_F(HttpServerTest, messagesGoBothWaysOverTls)
{
  const unsigned short port = start(settings(false, true));
  HttpTestClient client(port, HttpTestClient::Tls);
  client.say(
      webSocketRequest("localhost:" + std::to_string(port), "https://localhost:" + std::to_string(port)));
  EXPECT_THAT(client.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 101"));
  for (int i = 0; i < 50; ++i) {
    const std::string message(static_cast<std::size_t>(i) * 1000 + 200, static_cast<char>('a' + i % 26));
    client.say(clientFrame(1, message));
    const std::string head = client.hear(2);
    const std::size_t lengthBytes = static_cast<unsigned char>(head[1]) == 126 ? 2 : 0;
    client.hear(lengthBytes);
    EXPECT_EQ(client.hear(message.size()), message);
  }
}

TEST_F(HttpServerTest, messagesFromAnotherThreadArriveInOrder)
{
  const unsigned short port = start(settings(true, false));
  HttpTestClient client(port);
  client.say(webSocketRequest("localhost", "http://localhost"));
  client.hearUntil("\r\n\r\n");
  client.say(clientFrame(1, "x"));
  client.hear(3);
  std::shared_ptr<Engine::Transport> transport;
  {
    const std::lock_guard<std::mutex> lock(sessions.mutex);
    transport = sessions.transports.at(0);
  }
  std::thread worker([transport] {
    for (int i = 100; i < 600; ++i)
      transport->send(std::to_string(i));
    transport->close("done");
  });
  std::string expected;
  for (int i = 100; i < 600; ++i)
    expected += "\x81\x03" + std::to_string(i);
  EXPECT_EQ(client.hear(expected.size()), expected);
  worker.join();
}

TEST_F(HttpServerTest, aConnectionThatIsHeldUpDelaysNoOther)
{
  std::atomic<bool> goOn{false};
  std::thread worker;
  sessions.onResource = [&](FakeSessions::ResourceRequest request) {
    worker = std::thread([&goOn, response = request.response] {
      const std::string piece(64 * 1024, 'x');
      for (int i = 0; i < 64; ++i)
        response->out() << piece;
      response->finish();
      goOn = true;
    });
  };
  const unsigned short port = start(settings(true, false));
  HttpTestClient slow(port, HttpTestClient::Plain, 4096);
  slow.say("GET /?request=resource HTTP/1.1\r\nHost: localhost\r\nConnection: close\r\n\r\n");
  slow.hearUntil("\r\n\r\n");
  for (int i = 0; i < 20; ++i) {
    HttpTestClient other(port);
    EXPECT_THAT(other.get("/"), StartsWith("HTTP/1.1 200"));
  }
  std::size_t got = 0;
  while (got < 64u * 64u * 1024u) {
    const std::string bytes = slow.hear(64 * 1024);
    if (bytes.empty())
      break;
    got += static_cast<std::size_t>(std::count(bytes.begin(), bytes.end(), 'x'));
  }
  EXPECT_EQ(got, 64u * 64u * 1024u);
  worker.join();
  EXPECT_TRUE(goOn);
}

TEST_F(HttpServerTest, aWorkerIsFreedWhenTheServerStops)
{
  std::thread worker;
  std::atomic<bool> waiting{false};
  sessions.onResource = [&](FakeSessions::ResourceRequest request) {
    worker = std::thread([&waiting, response = request.response] {
      const std::string piece(64 * 1024, 'x');
      while (response->out() << piece)
        waiting = true;
    });
  };
  HttpTestClient slow(start(settings(true, false)), HttpTestClient::Plain, 4096);
  slow.say("GET /?request=resource HTTP/1.1\r\nHost: localhost\r\n\r\n");
  slow.hearUntil("\r\n\r\n");
  while (!waiting)
    std::this_thread::yield();
  server->stop();
  worker.join();
}

TEST_F(HttpServerTest, anUploadOfManyMegabytesIsSpooled)
{
  std::atomic<std::size_t> size{0};
  sessions.onResource = [&](FakeSessions::ResourceRequest request) {
    if (request.files.size() == 1) {
      size = readFile(request.files[0].spoolPath).size();
      std::remove(request.files[0].spoolPath.c_str());
    }
    request.response->finish();
  };
  HttpSettings chosen = settings(false, true);
  chosen.maximumBody = 64 * 1024 * 1024;
  HttpTestClient client(start(chosen), HttpTestClient::Tls);
  const std::string body = "--b\r\nContent-Disposition: form-data; name=\"f\"; filename=\"f\"\r\n\r\n" +
                           std::string(20 * 1024 * 1024, 'z') + "\r\n--b--\r\n";
  client.say("POST /?request=resource HTTP/1.1\r\nHost: localhost\r\nContent-Type: multipart/form-data; "
             "boundary=b\r\n"
             "Content-Length: " +
             std::to_string(body.size()) + "\r\n\r\n" + body);
  EXPECT_THAT(client.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 200"));
  EXPECT_EQ(size, 20u * 1024u * 1024u);
}

TEST_F(HttpServerTest, whoSendsTooMuchStillGetsTheAnswer)
{
  sessions.onResource = [](FakeSessions::ResourceRequest request) {
    request.response->setStatus(request.tooLarge ? 413 : 200);
    request.response->finish();
  };
  HttpTestClient client(start(settings(true, false)));
  const std::string body(1024 * 1024, 'x');
  client.say("POST /?request=resource HTTP/1.1\r\nHost: localhost\r\nContent-Length: 1048576\r\n\r\n" + body);
  EXPECT_THAT(client.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 413"));
}

TEST_F(HttpServerTest, ofAnAddressWithTooManyConnectionsTheLongestRestingOneGoes)
{
  HttpSettings chosen = settings(true, false);
  chosen.maximumPerAddress = 3;
  const unsigned short port = start(chosen);
  HttpTestClient first(port);
  EXPECT_THAT(first.get("/"), StartsWith("HTTP/1.1 200"));
  HttpTestClient page(port);
  page.say(webSocketRequest("localhost", "http://localhost"));
  EXPECT_THAT(page.hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 101"));
  HttpTestClient third(port);
  EXPECT_THAT(third.get("/"), StartsWith("HTTP/1.1 200"));
  HttpTestClient fourth(port);
  EXPECT_THAT(fourth.get("/"), StartsWith("HTTP/1.1 200"));
  EXPECT_TRUE(first.isClosed());
  page.say(clientFrame(1, "alive"));
  EXPECT_EQ(page.hear(7), "\x81\x05"
                          "alive");
}

TEST_F(HttpServerTest, beyondTheLimitNewConnectionsAreClosed)
{
  HttpSettings chosen = settings(true, false);
  chosen.maximumPerAddress = 2;
  const unsigned short port = start(chosen);
  HttpTestClient one(port);
  HttpTestClient two(port);
  for (HttpTestClient *page : {&one, &two}) {
    page->say(webSocketRequest("localhost", "http://localhost"));
    page->hearUntil("\r\n\r\n");
    page->say(clientFrame(1, "hello"));
    page->hear(7);
  }
  HttpTestClient three(port);
  EXPECT_TRUE(three.isClosed());
}

TEST_F(HttpServerTest, whoHasNotGreetedMakesRoomForOthers)
{
  HttpSettings chosen = settings(true, false);
  chosen.maximumConnections = 4;
  chosen.maximumPerAddress = 4; // of which three are left to it
  const unsigned short port = start(chosen);
  HttpTestClient page(port);
  HttpTestClient silent(port);
  for (HttpTestClient *one : {&page, &silent}) {
    one->say(webSocketRequest("localhost", "http://localhost"));
    EXPECT_THAT(one->hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 101"));
  }
  page.say(clientFrame(1, "hello"));
  page.hear(7);
  std::vector<std::unique_ptr<HttpTestClient>> mute;
  for (int i = 0; i < 6; ++i)
    mute.push_back(std::make_unique<HttpTestClient>(port));
  EXPECT_TRUE(silent.isClosed());
  EXPECT_THAT(HttpTestClient(port).get("/"), StartsWith("HTTP/1.1 200"));
  page.say(clientFrame(1, "alive"));
  EXPECT_EQ(page.hear(7), "\x81\x05"
                          "alive");
}

TEST_F(HttpServerTest, theNamesOfItsCertificateAreItsOwn)
{
  HttpSettings chosen = settings(false, true);
  writeCertificate(chosen.certificateChain, chosen.privateKey, "kvm.example");
  chosen.names = {"other.example"};
  HttpTestClient client(start(chosen), HttpTestClient::Tls);
  const auto answer = [&client](const std::string &name) {
    client.say("HEAD / HTTP/1.1\r\nHost: " + name + "\r\n\r\n");
    return client.hearUntil("\r\n\r\n");
  };
  for (const char *name : {"kvm.example", "KVM.example:8443", "alternative.kvm.example", "other.example",
                           "localhost", "127.0.0.1"})
    EXPECT_THAT(answer(name), StartsWith("HTTP/1.1 200")) << name;
  EXPECT_THAT(answer("another.example"), StartsWith("HTTP/1.1 421"));
}

TEST_F(HttpServerTest, manyPagesAtOnceAreAllAnswered)
{
  const unsigned short port = start(settings(true, false));
  std::vector<std::unique_ptr<HttpTestClient>> pages;
  for (int i = 0; i < 200; ++i) {
    pages.push_back(std::make_unique<HttpTestClient>(port));
    pages.back()->say(webSocketRequest("localhost", "http://localhost"));
  }
  for (const auto &page : pages)
    EXPECT_THAT(page->hearUntil("\r\n\r\n"), StartsWith("HTTP/1.1 101"));
  for (const auto &page : pages)
    page->say(clientFrame(1, "hi"));
  for (const auto &page : pages)
    EXPECT_EQ(page->hear(4), "\x81\x02hi");
}

TEST_F(HttpServerTest, pagesAreToldThatTheServerStops)
{
  HttpTestClient page(start(settings(true, false)));
  page.say(webSocketRequest("localhost", "http://localhost"));
  page.hearUntil("\r\n\r\n");
  std::thread browser([&page] { EXPECT_THAT(page.hearAll(), StartsWith("\x88\x0a\x03\xe9stopping")); });
  server->stop();
  browser.join();
  EXPECT_EQ(sessions.closings, 1);
}

TEST_F(HttpServerTest, theAccessLogHasPathsWithoutQueries)
{
  HttpSettings chosen = settings(true, false);
  chosen.accessLog = folder / "access.log";
  HttpTestClient client(start(chosen));
  client.get("/?wtd=secret");
  client.get("/a%22b?wtd=secret");
  server->stop();
  const std::string log = readFile(folder / "access.log");
  EXPECT_THAT(log, HasSubstr("\"GET / HTTP/1.1\" 200"));
  EXPECT_THAT(log, HasSubstr("\"GET /a\\x22b HTTP/1.1\" 404"));
  EXPECT_THAT(log, Not(HasSubstr("secret")));
}

TEST_F(HttpServerTest, whatCannotBeUsedIsSaidClearly)
{
  const unsigned short taken = start(settings(true, false));
  auto complaint = [this](const HttpSettings &chosen) {
    HttpServer other(chosen, sessions);
    std::string error;
    EXPECT_FALSE(other.start(error));
    return error;
  };
  HttpSettings chosen = settings(true, false);
  chosen.endpoints[0].port = taken;
  EXPECT_THAT(complaint(chosen), HasSubstr("in use"));
  chosen = settings(true, false);
  chosen.endpoints[0].address = "no such address";
  EXPECT_THAT(complaint(chosen), HasSubstr("no such address"));
  chosen = settings(true, false);
  chosen.accessLog = folder / "none/access.log";
  EXPECT_THAT(complaint(chosen), HasSubstr("access log"));
  chosen = settings(false, true);
  ::chmod(chosen.privateKey.c_str(), 0644);
  EXPECT_THAT(complaint(chosen), HasSubstr("closed to group and others"));
  chosen = settings(false, true);
  folder.write("cert.pem", "no certificate");
  EXPECT_THAT(complaint(chosen), HasSubstr("cert.pem\" cannot be used"));
  chosen = settings(false, true);
  writeCertificate(folder / "other.pem", folder / "other.key", "other");
  chosen.privateKey = folder / "other.key";
  EXPECT_THAT(complaint(chosen), HasSubstr("does not belong to"));
  chosen.privateKey = folder / "none.key";
  EXPECT_THAT(complaint(chosen), HasSubstr("none.key\" is not a file"));
}

TEST_F(HttpServerTest, aNewCertificateIsUsedWithoutARestartAndABadOneIsNot)
{
  const HttpSettings chosen = settings(false, true);
  const unsigned short port = start(chosen);
  EXPECT_TRUE(HttpTestClient(port, HttpTestClient::Tls).connected());
  folder.write("cert.pem", "broken");
  server->reload();
  EXPECT_TRUE(HttpTestClient(port, HttpTestClient::Tls).connected());
  writeCertificate(chosen.certificateChain, chosen.privateKey, "renewed");
  server->reload();
  EXPECT_TRUE(HttpTestClient(port, HttpTestClient::Tls).connected());
}
