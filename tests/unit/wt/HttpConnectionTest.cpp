// SPDX-License-Identifier: MIT
#include "HttpTestFolder.h"
#include "http/SpoolFolder.h"
#include "testing/MemoryNetwork.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>
#include <thread>

using namespace Wt;
using namespace Wt::Testing;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace
{

class HttpConnectionTest : public testing::Test
{
protected:
  HttpTestFolder folder;

  std::unique_ptr<MemoryConnection> connect(Net::Peer peer = Net::Peer())
  {
    peer.address = "192.0.2.7";
    return std::make_unique<MemoryConnection>(folder.path(), peer);
  }

  static Net::Peer securePeer()
  {
    Net::Peer peer;
    peer.secure = true;
    return peer;
  }
};

std::string get(const std::string &target, const std::string &more = std::string())
{
  return "GET " + target + " HTTP/1.1\r\nHost: switch\r\n" + more + "\r\n";
}

std::string post(const std::string &body, const std::string &type, const std::string &more = std::string())
{
  return "POST /?wtd=abc&request=resource&resource=o1 HTTP/1.1\r\nHost: switch\r\nContent-Type: " + type +
         "\r\nContent-Length: " + std::to_string(body.size()) + "\r\n" + more + "\r\n" + body;
}

/// The page has said who it is, and heard the answer.
void greet(MemoryConnection &peer)
{
  peer.say(webSocketRequest("switch", "http://switch") + clientFrame(1, "hello"));
  peer.heard();
  peer.sessions.messages.clear();
}

std::string bodyOf(const std::string &response)
{
  const std::size_t end = response.find("\r\n\r\n");
  return end == std::string::npos ? std::string() : response.substr(end + 4);
}

const char kFormType[] = "multipart/form-data; boundary=XyZ";

std::string form(const std::string &content)
{
  return "--XyZ\r\nContent-Disposition: form-data; name=\"data\"; filename=\"C:\\\\dir\\\\fw.bin\"\r\n"
         "Content-Type: application/octet-stream\r\n\r\n" +
         content + "\r\n--XyZ\r\nContent-Disposition: form-data; name=\"note\"\r\n\r\nhello\r\n--XyZ--\r\n";
}

} // namespace

TEST_F(HttpConnectionTest, thePageComesWithTheHeadersThatKeepItSafe)
{
  auto peer = connect();
  peer->say(get("/?theme=x"));
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, StartsWith("HTTP/1.1 200 OK\r\n"));
  EXPECT_THAT(answer,
              HasSubstr("Content-Security-Policy: default-src 'none'; script-src 'self'; style-src 'self'; "
                        "img-src 'self' data:; connect-src 'self'; font-src 'self'; frame-ancestors 'none'; "
                        "base-uri 'none'; form-action 'self'\r\n"));
  EXPECT_THAT(answer, HasSubstr("X-Content-Type-Options: nosniff\r\n"));
  EXPECT_THAT(answer, HasSubstr("Referrer-Policy: no-referrer\r\n"));
  EXPECT_THAT(answer, HasSubstr("Cache-Control: no-store\r\n"));
  EXPECT_THAT(answer, HasSubstr("Cross-Origin-Opener-Policy: same-origin\r\n"));
  EXPECT_THAT(answer, HasSubstr("Cross-Origin-Resource-Policy: same-origin\r\n"));
  EXPECT_THAT(answer, HasSubstr("Permissions-Policy: "));
  EXPECT_THAT(answer, Not(HasSubstr("Strict-Transport-Security")));
  EXPECT_EQ(bodyOf(answer), "<!DOCTYPE html><title>page</title>");
  ASSERT_EQ(peer->sessions.pages.size(), 1u);
  const Engine::RequestHead &head = peer->sessions.pages[0];
  EXPECT_EQ(head.scheme, "http");
  EXPECT_EQ(head.host, "switch");
  EXPECT_EQ(head.clientAddress, "192.0.2.7");
  EXPECT_EQ(head.entryPoint, "/");
  ASSERT_NE(head.parameter("theme"), nullptr);
  EXPECT_EQ(*head.parameter("theme"), "x");
}

TEST_F(HttpConnectionTest, forwardedAddressesAreBelievedOnlyBehindAProxy)
{
  const std::string forwarded = "X-Forwarded-For: 198.51.100.1, 203.0.113.9\r\nX-Forwarded-Proto: https\r\n";
  auto direct = connect();
  direct->say(get("/", forwarded));
  EXPECT_EQ(direct->sessions.pages.at(0).clientAddress, "192.0.2.7");
  EXPECT_EQ(direct->sessions.pages.at(0).scheme, "http");
  auto proxied = connect();
  proxied->service.behindProxy = true;
  proxied->say(get("/", forwarded));
  EXPECT_EQ(proxied->sessions.pages.at(0).clientAddress, "203.0.113.9");
  EXPECT_EQ(proxied->sessions.pages.at(0).scheme, "https");
}

TEST_F(HttpConnectionTest, requestsThatArriveTogetherAreAnsweredInOrder)
{
  folder.write("a.txt", "first");
  folder.write("b.txt", "second");
  auto peer = connect();
  peer->say(get("/a.txt") + get("/b.txt") + get("/c.txt"));
  const std::string answer = peer->heard();
  const std::size_t first = answer.find("first");
  const std::size_t second = answer.find("second");
  const std::size_t third = answer.find("404 Not Found");
  ASSERT_NE(third, std::string::npos);
  EXPECT_LT(first, second);
  EXPECT_LT(second, third);
  EXPECT_FALSE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, aRequestMayArriveByteByByte)
{
  folder.write("a.txt", "first");
  auto peer = connect();
  for (const char c : get("/a.txt"))
    peer->say(std::string(1, c));
  EXPECT_EQ(bodyOf(peer->heard()), "first");
}

TEST_F(HttpConnectionTest, aHeadRequestGetsTheFieldsAndNoBody)
{
  folder.write("a.txt", "first");
  auto peer = connect();
  peer->say("HEAD /a.txt HTTP/1.1\r\nHost: switch\r\n\r\n");
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, HasSubstr("Content-Length: 5\r\n"));
  EXPECT_EQ(bodyOf(answer), "");
}

TEST_F(HttpConnectionTest, anOldClientIsAnsweredAndLeft)
{
  auto peer = connect();
  peer->say("GET / HTTP/1.0\r\n\r\n");
  EXPECT_THAT(peer->heard(), HasSubstr("Connection: close\r\n"));
  EXPECT_TRUE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, nonsenseIsRefusedAndTheConnectionClosed)
{
  const std::pair<std::string, std::string> cases[] = {
      {"\x16\x03\x01 nonsense\r\n\r\n", "400"},
      {"GET / HTTP/1.1\r\n\r\n", "400"},
      {"GET / HTTP/1.1\r\nHost: a\r\nHost: b\r\n\r\n", "400"},
      {"GET / HTTP/1.1\r\nHost: evil\"<x>\r\n\r\n", "400"},
      {"GET nowhere HTTP/1.1\r\nHost: a\r\n\r\n", "400"},
      {"GET /%zz HTTP/1.1\r\nHost: a\r\n\r\n", "400"},
      {"GET /a%00b HTTP/1.1\r\nHost: a\r\n\r\n", "400"},
      {"GET /a%0d%0aSet-Cookie:x HTTP/1.1\r\nHost: a\r\n\r\n", "400"},
      {"GET / HTTP/9.9\r\nHost: a\r\n\r\n", "505"},
      {"POST /?request=resource HTTP/1.1\r\nHost: a\r\nContent-Length: 5\r\nTransfer-Encoding: "
       "chunked\r\n\r\n",
       "400"},
      {"POST /?request=resource HTTP/1.1\r\nHost: a\r\nContent-Length: 5\r\nContent-Length: 6\r\n\r\n",
       "400"},
      {"POST /?request=resource HTTP/1.1\r\nHost: a\r\nContent-Length: -1\r\n\r\n", "400"},
      {"GET / HTTP/1.1\r\nHost: a\r\nX: " + std::string(20000, 'x') + "\r\n\r\n", "431"},
      {"GET /" + std::string(20000, 'x') + " HTTP/1.1\r\nHost: a\r\n\r\n", "431"},
  };
  for (const auto &item : cases) {
    auto peer = connect();
    peer->say(item.first);
    EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 " + item.second)) << item.first.substr(0, 80);
    EXPECT_TRUE(peer->channel.closing) << item.first.substr(0, 80);
    EXPECT_TRUE(peer->sessions.pages.empty());
  }
}

TEST_F(HttpConnectionTest, tooManyFieldsAreRefused)
{
  std::string head = "GET / HTTP/1.1\r\nHost: a\r\n";
  for (int i = 0; i < 150; ++i)
    head += "X: y\r\n";
  auto peer = connect();
  peer->say(head + "\r\n");
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 431"));
}

TEST_F(HttpConnectionTest, otherMethodsAreNotAllowed)
{
  for (const char *method : {"PUT", "DELETE", "OPTIONS", "POST", "PATCH"}) {
    auto peer = connect();
    peer->say(std::string(method) + " / HTTP/1.1\r\nHost: switch\r\n\r\n");
    EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 405")) << method;
  }
}

TEST_F(HttpConnectionTest, aBodyThatNobodyAskedForEndsTheConnection)
{
  folder.write("a.txt", "first");
  auto peer = connect();
  peer->say("GET /a.txt HTTP/1.1\r\nHost: switch\r\nContent-Length: 100\r\n\r\nGET /b.txt");
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, HasSubstr("Connection: close"));
  EXPECT_EQ(bodyOf(answer), "first");
  EXPECT_TRUE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, aHeadThatNeverEndsIsGivenUp)
{
  auto peer = connect();
  peer->say("GET / HTTP/1.1\r\n");
  for (int second = 0; second < 9; ++second) {
    peer->wait(1s);
    peer->say("X: y\r\n");
  }
  EXPECT_EQ(peer->heard(), "");
  peer->wait(2s);
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 408"));
  EXPECT_TRUE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, aRestingConnectionIsClosedWithoutAWord)
{
  auto peer = connect();
  peer->say(get("/"));
  peer->heard();
  peer->wait(14s);
  EXPECT_FALSE(peer->channel.closing);
  peer->wait(2s);
  EXPECT_TRUE(peer->channel.closing);
  EXPECT_EQ(peer->heard(), "");
}

TEST_F(HttpConnectionTest, aPageAskedForInTheClearAtASharedPortIsToBeHadByTls)
{
  folder.write("a.txt", "first");
  Net::Peer peer;
  peer.sharedPort = true;
  auto plain = connect(peer);
  plain->say("GET /?a=b HTTP/1.1\r\nHost: switch:8443\r\n\r\n");
  const std::string answer = plain->heard();
  EXPECT_THAT(answer, StartsWith("HTTP/1.1 307"));
  EXPECT_THAT(answer, HasSubstr("Location: https://switch:8443/?a=b\r\n"));
  plain->say(get("/a.txt"));
  EXPECT_EQ(bodyOf(plain->heard()), "first");
  peer.secure = true;
  auto secure = connect(peer);
  secure->say(get("/"));
  EXPECT_THAT(secure->heard(), StartsWith("HTTP/1.1 200"));
}

TEST_F(HttpConnectionTest, strictTransportIsSaidByTlsOnly)
{
  auto secure = connect(securePeer());
  secure->service.strictTransport = true;
  secure->say(get("/"));
  EXPECT_THAT(secure->heard(), HasSubstr("Strict-Transport-Security: max-age="));
  auto plain = connect();
  plain->service.strictTransport = true;
  plain->say(get("/"));
  EXPECT_THAT(plain->heard(), Not(HasSubstr("Strict-Transport-Security")));
}

TEST_F(HttpConnectionTest, theScriptIsCompressedAndKeptForEverUnderItsVersion)
{
  auto peer = connect();
  const std::string version = Net::ScriptAsset::version();
  peer->say(get("/?request=script&v=" + version, "Accept-Encoding: gzip, br\r\n"));
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, HasSubstr("Content-Type: text/javascript"));
  EXPECT_THAT(answer, HasSubstr("Content-Encoding: gzip"));
  EXPECT_THAT(answer, HasSubstr("immutable"));
  peer->say(get("/?request=script", "Accept-Encoding: gzip\r\nIf-None-Match: \"" + version + "-gz\"\r\n"));
  const std::string second = peer->heard();
  EXPECT_THAT(second, StartsWith("HTTP/1.1 304"));
  EXPECT_THAT(second, Not(HasSubstr("immutable")));
}

// WebSockets

TEST_F(HttpConnectionTest, aWebSocketCarriesMessagesBothWays)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, StartsWith("HTTP/1.1 101"));
  EXPECT_THAT(answer, HasSubstr("Sec-WebSocket-Accept: s3pPLMBiTxaQ9kYGzzhZRbK+xOo=\r\n"));
  peer->say(clientFrame(1, "{\"hello\":1}"));
  EXPECT_EQ(peer->heard(), "\x81\x0b{\"hello\":1}");
  EXPECT_EQ(peer->sessions.messages, std::vector<std::string>{"{\"hello\":1}"});
}

TEST_F(HttpConnectionTest, aMessageRightBehindTheRequestIsNotLost)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch") + clientFrame(1, "early"));
  EXPECT_EQ(peer->sessions.messages, std::vector<std::string>{"early"});
}

TEST_F(HttpConnectionTest, aWebSocketOfAnotherOriginIsRefused)
{
  struct Case {
    const char *host;
    const char *origin;
    bool secure;
    bool allowed;
  };
  const Case cases[] = {
      {"switch", "http://switch", false, true},
      {"switch", "http://evil", false, false},
      {"switch", "", false, false},
      {"switch", "null", false, false},
      {"switch", "https://switch", false, false},
      {"switch", "https://switch", true, true},
      {"switch", "http://switch", true, false},
      {"switch:8443", "https://switch", true, false},
      {"switch:443", "https://switch", true, true},
      {"Switch", "https://switch", true, true},
      {"switch", "http://switch.evil", false, false},
      {"[::1]:80", "http://[::1]", false, true},
  };
  for (const Case &item : cases) {
    auto peer = connect(item.secure ? securePeer() : Net::Peer());
    peer->say(webSocketRequest(item.host, item.origin));
    EXPECT_THAT(peer->heard(), StartsWith(item.allowed ? "HTTP/1.1 101" : "HTTP/1.1 403"))
        << item.host << " " << item.origin;
    EXPECT_EQ(peer->sessions.connections.size(), item.allowed ? 1u : 0u);
  }
}

TEST_F(HttpConnectionTest, aHalfHeartedWebSocketRequestIsRefused)
{
  auto without = [](std::string request, const std::string &line) {
    const std::size_t at = request.find(line);
    return request.erase(at, request.find("\r\n", at) + 2 - at);
  };
  const std::string whole = webSocketRequest("switch", "http://switch");
  for (const char *line : {"Connection:", "Upgrade:", "Sec-WebSocket-Key:"}) {
    auto peer = connect();
    peer->say(without(whole, line));
    EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 400")) << line;
  }
  auto peer = connect();
  peer->say(without(whole, "Sec-WebSocket-Version:"));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 426"));
}

TEST_F(HttpConnectionTest, anOpenPageCostsNothingInTwentySecondsAndAPingAMinute)
{
  auto peer = connect();
  greet(*peer);
  peer->wait(59s);
  EXPECT_EQ(peer->heard(), "");
  peer->wait(2s);
  EXPECT_EQ(peer->heard(), std::string("\x89\x00", 2));
  peer->say(clientFrame(10, ""));
  peer->wait(59s);
  EXPECT_FALSE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, aPeerThatAnswersNoPingIsDropped)
{
  auto peer = connect();
  greet(*peer);
  peer->wait(61s);
  EXPECT_FALSE(peer->channel.aborted);
  peer->wait(61s);
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, goodbyeIsToldApartFromALostConnection)
{
  auto leaving = connect();
  leaving->say(webSocketRequest("switch", "http://switch"));
  leaving->say(clientFrame(8, std::string("\x0f\xa0", 2)));
  EXPECT_EQ(leaving->sessions.closings, 1);
  EXPECT_EQ(leaving->sessions.goodbyes, 1);
  EXPECT_TRUE(leaving->channel.closing);
  auto lost = connect();
  lost->say(webSocketRequest("switch", "http://switch"));
  lost->hangUp();
  EXPECT_EQ(lost->sessions.closings, 1);
  EXPECT_EQ(lost->sessions.goodbyes, 0);
}

TEST_F(HttpConnectionTest, aSessionClosesItsConnectionAfterWhatItHasSaid)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  peer->heard();
  const auto transport = peer->sessions.transports.at(0);
  transport->send("last");
  transport->close("quit");
  transport->send("never");
  peer->loop.run();
  EXPECT_EQ(peer->heard(), std::string("\x81\x04last\x88\x06\x03\xe8quit"));
  peer->say(clientFrame(8, std::string("\x03\xe8", 2)));
  EXPECT_TRUE(peer->channel.closing);
  EXPECT_EQ(peer->sessions.closings, 1);
}

TEST_F(HttpConnectionTest, aPeerThatDoesNotCloseIsClosed)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  peer->sessions.transports.at(0)->close("quit");
  peer->loop.run();
  peer->wait(6s);
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, aPageThatDoesNotTakeItsMessagesIsDropped)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  peer->channel.holding = true;
  const auto transport = peer->sessions.transports.at(0);
  for (int i = 0; i < 20 && !peer->channel.aborted; ++i) {
    transport->send(std::string(1024 * 1024, 'x'));
    peer->loop.run();
  }
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, theTransportIsHarmlessAfterTheConnectionIsGone)
{
  std::shared_ptr<Engine::Transport> transport;
  {
    auto peer = connect();
    peer->say(webSocketRequest("switch", "http://switch"));
    transport = peer->sessions.transports.at(0);
    peer->hangUp();
  }
  transport->send("x");
  transport->close("y");
}

TEST_F(HttpConnectionTest, aRefusedPageIsToldToTryLater)
{
  auto peer = connect();
  peer->sessions.refusing = true;
  peer->say(webSocketRequest("switch", "http://switch"));
  EXPECT_THAT(peer->heard(), HasSubstr("\x88\x06\x03\xf5"
                                       "busy"));
}

TEST_F(HttpConnectionTest, whoBreaksTheRulesOfWebSocketsIsClosedWithTheReason)
{
  const std::pair<std::string, int> cases[] = {
      {"\x81\x03"
       "abc",
       1002},                                             // not masked
      {clientFrame(1, "\xff\xfe"), 1007},                 // not UTF-8
      {clientFrame(2, "x"), 1003},                        // binary
      {clientFrame(0, "x"), 1002},                        // continues nothing
      {clientFrame(3, "x"), 1002},                        // unknown kind
      {clientFrame(9, std::string(126, 'x')), 1002},      // long ping
      {clientFrame(8, "x"), 1002},                        // half a close code
      {clientFrame(8, std::string("\x03\xed", 2)), 1002}, // reserved close code
      {"\xc1" + clientFrame(1, "x").substr(1), 1002},     // reserved bit
      {clientFrame(1, "a", false) + clientFrame(1, "b"), 1002},
      {clientFrame(1, std::string(600 * 1024, 'x')), 1009},
      {clientFrame(1, std::string(300 * 1024, 'x'), false) + clientFrame(0, std::string(300 * 1024, 'x')),
       1009},
      {std::string("\x81\xff\x7f\xff\xff\xff\xff\xff\xff\xff\x01\x02\x03\x04", 14), 1009},
  };
  for (const auto &item : cases) {
    auto peer = connect();
    greet(*peer);
    peer->say(item.first);
    const std::string answer = peer->heard();
    ASSERT_GE(answer.size(), 4u) << item.second;
    EXPECT_EQ(static_cast<unsigned char>(answer[0]), 0x88);
    EXPECT_EQ(static_cast<unsigned char>(answer[2]) * 256 + static_cast<unsigned char>(answer[3]),
              item.second);
    EXPECT_TRUE(peer->channel.closing);
    EXPECT_EQ(peer->sessions.closings, 1);
    EXPECT_TRUE(peer->sessions.messages.empty());
  }
}

TEST_F(HttpConnectionTest, whoDoesNotGreetGoesWithinSecondsWhateverElseItSays)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  EXPECT_FALSE(peer->connection->isKnown());
  for (int i = 0; i < 9; ++i) {
    peer->say(clientFrame(10, ""));
    peer->say(clientFrame(1, "a piece of a greeting", false).substr(0, i ? 0 : 8));
    peer->wait(1s);
  }
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, beforeTheGreetingAMessageIsShortAndLaterItMayBeLong)
{
  for (const std::string &greeting :
       {clientFrame(1, std::string(40 * 1024, 'x')).substr(0, 10),
        clientFrame(1, std::string(20 * 1024, 'x'), false) + clientFrame(0, std::string(20 * 1024, 'x'))}) {
    auto peer = connect();
    peer->say(webSocketRequest("switch", "http://switch"));
    peer->heard();
    peer->say(greeting);
    EXPECT_THAT(peer->heard(), StartsWith("\x88\x02\x03\xf1"));
    EXPECT_TRUE(peer->channel.closing);
  }
  auto page = connect();
  greet(*page);
  EXPECT_TRUE(page->connection->isKnown());
  page->say(clientFrame(1, std::string(500 * 1024, 'x')));
  EXPECT_EQ(page->sessions.messages.size(), 1u);
}

TEST_F(HttpConnectionTest, aMessageThatNeverBecomesWholeIsGivenUp)
{
  auto peer = connect();
  greet(*peer);
  const std::string frame = clientFrame(1, std::string(500 * 1024, 'x'));
  for (std::size_t i = 0; i < 100 && !peer->channel.aborted; ++i) {
    peer->say(std::string_view(frame).substr(i * 20, 20));
    peer->wait(5s);
  }
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, longMessagesThatHaveBegunMustNotFillTheMemory)
{
  auto peer = connect();
  greet(*peer);
  peer->service.unfinished = peer->service.limits.unfinished;
  const std::string frame = clientFrame(1, std::string(500 * 1024, 'x'));
  peer->say(frame.substr(0, 60 * 1024));
  EXPECT_FALSE(peer->channel.closing);
  peer->say(frame.substr(60 * 1024, 20 * 1024));
  EXPECT_TRUE(peer->channel.closing);
  peer->hangUp();
  EXPECT_EQ(peer->service.unfinished, peer->service.limits.unfinished);
}

TEST_F(HttpConnectionTest, pingsOfAPeerThatReadsNothingAreNotAnswered)
{
  auto peer = connect();
  greet(*peer);
  peer->channel.holding = true;
  for (int i = 0; i < 1000; ++i)
    peer->say(clientFrame(9, std::string(125, 'p')));
  EXPECT_LT(peer->channel.held.size(), 17u * 1024);
  EXPECT_FALSE(peer->channel.aborted);
  peer->takeHeld();
  peer->channel.holding = false;
  peer->heard();
  peer->say(clientFrame(9, "again"));
  EXPECT_EQ(peer->heard(), "\x8a\x05"
                           "again");
}

TEST_F(HttpConnectionTest, aForeignNameIsRefusedInWords)
{
  for (const char *foreign : {"evil.example", "switch.evil.example", "switch:80:80", "[::1", "."}) {
    auto peer = connect();
    peer->say("GET / HTTP/1.1\r\nHost: " + std::string(foreign) + "\r\n\r\n");
    const std::string answer = peer->heard();
    EXPECT_THAT(answer, StartsWith("HTTP/1.1 421 Misdirected Request\r\n")) << foreign;
    EXPECT_THAT(answer, HasSubstr("Use its numeric address"));
    EXPECT_TRUE(peer->channel.closing);
    EXPECT_TRUE(peer->sessions.pages.empty());
    auto page = connect();
    page->say(webSocketRequest(foreign, std::string("http://") + foreign));
    EXPECT_THAT(page->heard(), StartsWith("HTTP/1.1 421")) << foreign;
    EXPECT_TRUE(page->sessions.connections.empty());
  }
}

TEST_F(HttpConnectionTest, anUnknownTransferCodingIsRefusedAndTheConnectionClosed)
{
  for (const char *coding :
       {"identity", "gzip", "xchunked", "\"chunked\"", "chunked, identity", "gzip, chunked"}) {
    auto peer = connect();
    peer->say("POST /?request=resource HTTP/1.1\r\nHost: switch\r\nTransfer-Encoding: " +
              std::string(coding) + "\r\n\r\n" + get("/"));
    EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 501")) << coding;
    EXPECT_TRUE(peer->channel.closing);
    EXPECT_TRUE(peer->sessions.pages.empty());
  }
}

TEST_F(HttpConnectionTest, aSharedPortGivesNothingOfASessionInTheClear)
{
  Net::Peer peer;
  peer.sharedPort = true;
  auto page = connect(peer);
  page->say(webSocketRequest("switch", "http://switch"));
  EXPECT_THAT(page->heard(), StartsWith("HTTP/1.1 403"));
  EXPECT_TRUE(page->sessions.connections.empty());
  auto download = connect(peer);
  download->say(get("/?wtd=abc&request=resource&resource=o1"));
  EXPECT_THAT(download->heard(), StartsWith("HTTP/1.1 403"));
  EXPECT_TRUE(download->sessions.requests.empty());
  peer.secure = true;
  auto secure = connect(peer);
  secure->say(webSocketRequest("switch", "https://switch"));
  EXPECT_THAT(secure->heard(), StartsWith("HTTP/1.1 101"));
}

TEST_F(HttpConnectionTest, aMessageInPiecesWithAPingBetweenIsOneMessage)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  peer->heard();
  const std::string bytes = clientFrame(1, "Gr\xc3", false) + clientFrame(9, "hi") +
                            clientFrame(0, "\xbc\xc3\x9f"
                                           "e");
  for (const char c : bytes)
    peer->say(std::string(1, c));
  EXPECT_EQ(peer->sessions.messages, std::vector<std::string>{"Gr\xc3\xbc\xc3\x9f"
                                                              "e"});
  EXPECT_THAT(peer->heard(), StartsWith("\x8a\x02hi"));
}

TEST_F(HttpConnectionTest, longMessagesHaveTheRightLengthForm)
{
  auto peer = connect();
  peer->say(webSocketRequest("switch", "http://switch"));
  peer->heard();
  peer->say(clientFrame(1, std::string(126, 'a')));
  EXPECT_EQ(peer->heard(), std::string("\x81\x7e\x00\x7e", 4) + std::string(126, 'a'));
  peer->say(clientFrame(1, std::string(70000, 'b')));
  EXPECT_EQ(peer->heard(),
            std::string("\x81\x7f\x00\x00\x00\x00\x00\x01\x11\x70", 10) + std::string(70000, 'b'));
}

TEST_F(HttpConnectionTest, aStoppingServerSaysSo)
{
  auto page = connect();
  page->say(webSocketRequest("switch", "http://switch"));
  page->heard();
  page->connection->shutDown();
  EXPECT_THAT(page->heard(), StartsWith("\x88\x0a\x03\xe9stopping"));
  auto idle = connect();
  idle->connection->shutDown();
  EXPECT_TRUE(idle->channel.aborted);
}

// Resources

TEST_F(HttpConnectionTest, aResourceOfKnownLengthIsSentAsItIs)
{
  auto peer = connect();
  peer->say(get("/?wtd=abc&request=resource&resource=o1"));
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  auto &response = *peer->sessions.requests[0].response;
  EXPECT_TRUE(response.connected());
  response.setStatus(201);
  response.setMimeType("text/csv");
  response.addHeader("X-Good", "yes");
  response.addHeader("X-Bad", "a\r\nSet-Cookie: b");
  response.addHeader("Bad Name", "x");
  response.addHeader("Transfer-Encoding", "chunked");
  response.setContentLength(5);
  response.out() << "hello";
  response.finish();
  peer->loop.run();
  const std::string answer = peer->heard();
  EXPECT_THAT(answer, StartsWith("HTTP/1.1 201 Created\r\n"));
  EXPECT_THAT(answer, HasSubstr("Content-Type: text/csv\r\n"));
  EXPECT_THAT(answer, HasSubstr("X-Good: yes\r\n"));
  EXPECT_THAT(answer, HasSubstr("Content-Length: 5\r\n"));
  EXPECT_THAT(answer, HasSubstr("Cache-Control: no-store\r\n"));
  EXPECT_THAT(answer, Not(HasSubstr("Set-Cookie")));
  EXPECT_THAT(answer, Not(HasSubstr("Bad Name")));
  EXPECT_THAT(answer, Not(HasSubstr("chunked")));
  EXPECT_EQ(bodyOf(answer), "hello");
  EXPECT_FALSE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, aResourceOfUnknownLengthIsSentInChunks)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  auto &response = *peer->sessions.requests.at(0).response;
  response.out() << "hello " << std::flush;
  peer->loop.run();
  EXPECT_THAT(peer->heard(), HasSubstr("Transfer-Encoding: chunked\r\n"));
  response.out() << "world";
  response.finish();
  peer->loop.run();
  EXPECT_EQ(peer->heard(), "5\r\nworld\r\n0\r\n\r\n");
}

TEST_F(HttpConnectionTest, aResourceThatIsDroppedByItsWorkerIsEnded)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  peer->sessions.requests.clear();
  peer->loop.run();
  EXPECT_THAT(peer->heard(), HasSubstr("Content-Length: 0\r\n"));
}

TEST_F(HttpConnectionTest, aResourceThatWritesLessThanItPromisedIsCutOff)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  auto &response = *peer->sessions.requests.at(0).response;
  response.setContentLength(100);
  response.out() << "short";
  response.finish();
  peer->loop.run();
  EXPECT_TRUE(peer->channel.aborted);
}

TEST_F(HttpConnectionTest, aResourceThatWritesMoreThanItPromisedIsTrimmed)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  auto &response = *peer->sessions.requests.at(0).response;
  response.setContentLength(3);
  response.out() << "abcdef";
  response.finish();
  peer->loop.run();
  EXPECT_EQ(bodyOf(peer->heard()), "abc");
}

TEST_F(HttpConnectionTest, aWorkerWaitsForASlowBrowserAndLittleIsHeld)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  peer->channel.holding = true;
  const auto response = peer->sessions.requests.at(0).response;
  std::atomic<std::size_t> written{0};
  std::thread worker([response, &written] {
    const std::string piece(1024, 'x');
    for (int i = 0; i < 2048; ++i) {
      response->out() << piece;
      written += piece.size();
    }
    response->finish();
  });
  std::size_t most = 0;
  std::size_t taken = 0;
  while (taken < 2048u * 1024u) {
    peer->loop.run();
    most = std::max(most, written - taken);
    peer->takeHeld();
    const std::string heard = peer->heard();
    taken += static_cast<std::size_t>(std::count(heard.begin(), heard.end(), 'x'));
    std::this_thread::yield();
  }
  worker.join();
  EXPECT_LE(most, 512u * 1024u);
}

TEST_F(HttpConnectionTest, aWorkerIsFreedWhenTheBrowserGoes)
{
  auto peer = connect();
  peer->say(get("/?request=resource"));
  peer->channel.holding = true;
  const auto response = peer->sessions.requests.at(0).response;
  std::thread worker([response] {
    const std::string piece(1024, 'x');
    while (response->out() << piece) {
    }
  });
  peer->loop.run();
  peer->hangUp();
  worker.join();
  EXPECT_FALSE(response->connected());
}

// Uploads

TEST_F(HttpConnectionTest, anUploadedFileIsSpooledAndItsTextsBecomeParameters)
{
  auto peer = connect();
  const std::string content = std::string(50000, 'a') + "\r\n--XyY\r\n--Xy" + std::string("\0\xff", 2);
  const std::string request = post(form(content), kFormType, "Origin: http://switch\r\n");
  for (std::size_t at = 0; at < request.size(); at += 777)
    peer->say(request.substr(at, 777));
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  const auto &got = peer->sessions.requests[0];
  ASSERT_EQ(got.files.size(), 1u);
  EXPECT_EQ(got.files[0].fieldName, "data");
  EXPECT_EQ(got.files[0].clientFileName, "fw.bin");
  EXPECT_EQ(got.files[0].contentType, "application/octet-stream");
  EXPECT_EQ(readFile(got.files[0].spoolPath), content);
  EXPECT_EQ(std::filesystem::status(got.files[0].spoolPath).permissions(),
            std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
  ASSERT_NE(got.head.parameter("note"), nullptr);
  EXPECT_EQ(*got.head.parameter("note"), "hello");
  EXPECT_EQ(got.tooLarge, 0u);
  ASSERT_FALSE(peer->sessions.progress.empty());
  EXPECT_EQ(peer->sessions.progress.back().first, peer->sessions.progress.back().second);
  EXPECT_TRUE(peer->service.uploads.empty());
}

TEST_F(HttpConnectionTest, anUploadInChunksIsTaken)
{
  auto peer = connect();
  const std::string body = form("abc");
  char size[16];
  std::snprintf(size, sizeof size, "%zx\r\n", body.size());
  peer->say("POST /?request=resource HTTP/1.1\r\nHost: switch\r\nContent-Type: " + std::string(kFormType) +
            "\r\nTransfer-Encoding: chunked\r\n\r\n" + size + body + "\r\n0\r\n\r\n");
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  EXPECT_EQ(readFile(peer->sessions.requests[0].files.at(0).spoolPath), "abc");
}

TEST_F(HttpConnectionTest, aFileFieldInWhichNothingWasChosenGivesNoFile)
{
  auto peer = connect();
  peer->say(
      post("--XyZ\r\nContent-Disposition: form-data; name=\"data\"; filename=\"\"\r\n\r\n\r\n--XyZ--\r\n",
           kFormType));
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  EXPECT_TRUE(peer->sessions.requests[0].files.empty());
}

TEST_F(HttpConnectionTest, aTooLargeUploadIsNotReadAndItsSizeIsTold)
{
  auto peer = connect();
  peer->service.maximumBody = 1000;
  peer->say("POST /?request=resource HTTP/1.1\r\nHost: switch\r\nContent-Type: " + std::string(kFormType) +
            "\r\nContent-Length: 5000000000\r\n\r\nbeginning");
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  EXPECT_EQ(peer->sessions.requests[0].tooLarge, 5000000000u);
  peer->sessions.requests[0].response->setStatus(413);
  peer->sessions.requests[0].response->finish();
  peer->loop.run();
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 413"));
  EXPECT_TRUE(peer->channel.closing);
}

TEST_F(HttpConnectionTest, anUploadInChunksIsStoppedAtTheLimit)
{
  auto peer = connect();
  peer->service.maximumBody = 1000;
  peer->say("POST /?request=resource HTTP/1.1\r\nHost: switch\r\nContent-Type: x/y\r\nTransfer-Encoding: "
            "chunked\r\n\r\n");
  for (int i = 0; i < 20; ++i)
    peer->say("64\r\n" + std::string(100, 'x') + "\r\n");
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  EXPECT_GT(peer->sessions.requests[0].tooLarge, 1000u);
  EXPECT_TRUE(peer->sessions.requests[0].files.empty());
}

TEST_F(HttpConnectionTest, anUploadFromAnotherSiteIsRefused)
{
  auto peer = connect();
  peer->say(post(form("abc"), kFormType, "Origin: http://evil\r\n"));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 403"));
  EXPECT_TRUE(peer->sessions.requests.empty());
}

TEST_F(HttpConnectionTest, aBrokenFormIsRefusedAndLeavesNoFile)
{
  const std::string bodies[] = {
      "--XyZ\r\nContent-Disposition: form-data; name=\"data\"; filename=\"a\"\r\n\r\nabc",
      "--XyZ\r\nContent-Disposition: form-data\r\n\r\nabc\r\n--XyZ--\r\n",
      "--XyZ\r\n" + std::string(20000, 'x'),
      "no boundary at all",
      "",
  };
  for (const std::string &body : bodies) {
    auto peer = connect();
    peer->say(post(body + " ", kFormType));
    EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 400")) << body.substr(0, 60);
    EXPECT_TRUE(std::filesystem::is_empty(Net::SpoolFolder::instance().path()));
  }
}

TEST_F(HttpConnectionTest, anUploadThatIsBrokenOffLeavesNoFile)
{
  const std::string spool = Net::SpoolFolder::instance().path();
  auto peer = connect();
  const std::string request = post(form(std::string(10000, 'a')), kFormType);
  peer->say(request.substr(0, 5000));
  EXPECT_FALSE(std::filesystem::is_empty(spool));
  peer->hangUp();
  EXPECT_TRUE(std::filesystem::is_empty(spool));
  EXPECT_TRUE(peer->service.uploads.empty());
}

TEST_F(HttpConnectionTest, anUploadThatCreepsIsGivenUp)
{
  auto peer = connect();
  const std::string request = post(form(std::string(100000, 'a')), kFormType);
  peer->say(request.substr(0, 400));
  for (int i = 0; i < 20; ++i) {
    peer->wait(2s);
    peer->say("a");
  }
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 408"));
}

TEST_F(HttpConnectionTest, onlySoManyUploadsRunAtATime)
{
  auto peer = connect();
  while (peer->service.uploads.size() < peer->service.limits.uploads)
    peer->service.uploads.insert(std::to_string(peer->service.uploads.size()));
  peer->say(post(form("abc"), kFormType));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 503"));
  EXPECT_EQ(peer->service.uploads.size(), peer->service.limits.uploads);
}

TEST_F(HttpConnectionTest, aSessionHasOneUploadAtATime)
{
  auto peer = connect();
  peer->service.uploads = {"abc"};
  peer->say(post(form("abc"), kFormType));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 503"));
  auto next = connect();
  next->service.uploads = {"other"};
  next->say(post(form("abc"), kFormType));
  EXPECT_EQ(next->sessions.requests.size(), 1u);
  EXPECT_EQ(next->service.uploads, std::set<std::string>{"other"});
}

TEST_F(HttpConnectionTest, noBodyIsTakenInForAResourceThatNobodyHas)
{
  auto peer = connect();
  peer->sessions.knowsResources = false;
  const std::string request = post(form("abc"), kFormType, "Expect: 100-continue\r\n");
  peer->say(request.substr(0, request.find("\r\n\r\n") + 4));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 404"));
  EXPECT_TRUE(peer->channel.closing);
  EXPECT_TRUE(peer->service.uploads.empty());
}

TEST_F(HttpConnectionTest, aFormOfManyFilesIsRefusedAndLeavesNone)
{
  std::string body;
  for (int i = 0; i < 40; ++i)
    body += "--XyZ\r\nContent-Disposition: form-data; name=\"data\"; filename=\"a\"\r\n\r\nabc\r\n";
  auto peer = connect();
  peer->say(post(body + "--XyZ--\r\n", kFormType));
  EXPECT_THAT(peer->heard(), StartsWith("HTTP/1.1 400"));
  EXPECT_TRUE(std::filesystem::is_empty(Net::SpoolFolder::instance().path()));
}

TEST_F(HttpConnectionTest, aClientThatWaitsForALeaveToSendGetsIt)
{
  auto peer = connect();
  const std::string request = post(form("abc"), kFormType, "Expect: 100-continue\r\n");
  const std::size_t head = request.find("\r\n\r\n") + 4;
  peer->say(request.substr(0, head));
  EXPECT_EQ(peer->heard(), "HTTP/1.1 100 Continue\r\n\r\n");
  peer->say(request.substr(head));
  EXPECT_EQ(peer->sessions.requests.size(), 1u);
}

TEST_F(HttpConnectionTest, parametersInABodyAreTaken)
{
  auto peer = connect();
  peer->say(post("a=1&b=two+words%21", "application/x-www-form-urlencoded"));
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  EXPECT_EQ(*peer->sessions.requests[0].head.parameter("b"), "two words!");
}

TEST_F(HttpConnectionTest, aBodyOfAnotherTypeComesAsAFileWithoutAFieldName)
{
  auto peer = connect();
  peer->say(post("{\"a\":1}", "application/json"));
  ASSERT_EQ(peer->sessions.requests.size(), 1u);
  ASSERT_EQ(peer->sessions.requests[0].files.size(), 1u);
  EXPECT_EQ(peer->sessions.requests[0].files[0].fieldName, "");
  EXPECT_EQ(readFile(peer->sessions.requests[0].files[0].spoolPath), "{\"a\":1}");
}
