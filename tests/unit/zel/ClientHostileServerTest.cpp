// SPDX-License-Identifier: MIT
// Whatever a server does, the caller gets a null response within the time limit and an invalid client.
#include "ClientOptions.h"
#include "FakeServer.h"
#include "ZelClient.h"
#include "ZelObj.h"
#include "ZelReq.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

#include <chrono>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>
#include <thread>

namespace
{

constexpr int kLimitMs = 150;

class HostileServer : public ::testing::Test
{
protected:
  HostileServer() { zelclient::setRequestTimeoutMs(kLimitMs); }
  ~HostileServer() override { zelclient::setRequestTimeoutMs(0); }

  static json_t *ask(ZelClient_s *client)
  {
    json_t *request = ZelReqUtil_newGetResource("rx");
    json_t *response = ZelClient_getResponse(client, request);
    ZelReqUtil_free(request);
    return response;
  }

  // Waits until the client knows that nothing more is to be had of it.
  static bool becomesInvalid(const ZelClient_s *client)
  {
    const auto limit = std::chrono::steady_clock::now() + std::chrono::seconds(30);
    while (ZelClient_isValid(client) && std::chrono::steady_clock::now() < limit)
      std::this_thread::yield();
    return !ZelClient_isValid(client);
  }

  // Expects that a request to a server which behaves so comes to nothing, in time.
  static void expectNothing(const std::function<void(int)> &behaviour)
  {
    FakeServer server(behaviour);
    ZelClient_s *client = ZelClient_new();
    ASSERT_NE(nullptr, client);
    auto start = std::chrono::steady_clock::now();
    EXPECT_EQ(nullptr, ask(client));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(kLimitMs * 10));
    EXPECT_FALSE(ZelClient_isValid(client));
    EXPECT_EQ(nullptr, ask(client));
    ZelClient_close(client);
  }

  // Expects the same of a server that answers the first request with these bytes and hangs up.
  static void expectNothingFor(std::string bytes)
  {
    expectNothing([bytes](int fd) {
      FakeServer::receive(fd);
      FakeServer::sendRaw(fd, bytes);
    });
  }
};

TEST_F(HostileServer, thatIsAbsentGivesNoClient)
{
  ::setenv("NEVO_STORE_SOCKET", "/tmp/nevo-no-such-directory/sock", 1);
  EXPECT_EQ(nullptr, ZelClient_new());
  ::setenv("NEVO_STORE_SOCKET", std::string(300, 'x').c_str(), 1);
  EXPECT_EQ(nullptr, ZelClient_new());
  ::unsetenv("NEVO_STORE_SOCKET");
  EXPECT_FALSE(ZelClient_isValid(nullptr));
  EXPECT_EQ(nullptr, ask(nullptr));
  ZelClient_close(nullptr);
}

TEST_F(HostileServer, thatIsSilentCostsTheTimeLimit)
{
  expectNothing(FakeServer::waitForEnd);
}

TEST_F(HostileServer, thatHangsUpCostsNothing)
{
  expectNothingFor("");
}

TEST_F(HostileServer, thatSendsAByteNowAndThenCostsTheTimeLimitOnce)
{
  expectNothing([](int fd) {
    FakeServer::receive(fd);
    std::string bytes = FakeServer::frame("{\"data\":{}}");
    for (char byte : bytes) {
      FakeServer::sendRaw(fd, std::string_view(&byte, 1));
      std::this_thread::sleep_for(std::chrono::milliseconds(kLimitMs / 5));
    }
  });
}

TEST_F(HostileServer, thatCutsItsAnswerGivesNothing)
{
  expectNothingFor(std::string("\0\0", 2));
  expectNothingFor(std::string("\0\0\0\x20{\"data\"", 11));
}

TEST_F(HostileServer, thatPromisesAnEndlessAnswerGivesNothing)
{
  expectNothingFor("\xff\xff\xff\xff{\"data\":{}}");
  expectNothingFor(std::string("\0\0\0\0", 4));
}

TEST_F(HostileServer, thatSendsMoreThanItsAnswerGivesNothing)
{
  expectNothingFor(FakeServer::frame("{\"data\":{}}") + "x");
}

TEST_F(HostileServer, thatSendsNonsenseGivesNothing)
{
  for (const char *text : {"nonsense", "{\"data\":", "[]", "7", "{}", "{\"data\":7}", "{\"data\":null}",
                           "{\"errors\":7}", "{\"data\":{\"a\":1,\"a\":2}}", "{\"data\":{\"a\":\"\xff\"}}",
                           "{\"unchanged\":true}", "{\"unchanged\":1}"})
    expectNothingFor(FakeServer::frame(text));
  std::string deep = "{\"data\":" + std::string(10000, '[') + std::string(10000, ']') + '}';
  expectNothingFor(FakeServer::frame(deep));
}

TEST_F(HostileServer, thatTakesNothingDoesNotHoldALongRequest)
{
  FakeServer server([](int fd) {
    pollfd hungUp{fd, 0, 0};
    ::poll(&hungUp, 1, -1);
  });
  ZelClient_s *client = ZelClient_new();
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setStringParam(request, "notes", std::string(4000000, 'x').c_str());
  auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(nullptr, ZelClient_getResponse(client, request));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::milliseconds(kLimitMs * 10));
  ZelReqUtil_free(request);
  ZelClient_close(client);
}

TEST_F(HostileServer, thatSpeaksWithoutBeingAskedMakesTheClientInvalid)
{
  FakeServer server([](int fd) {
    FakeServer::send(fd, "{\"data\":{}}");
    FakeServer::waitForEnd(fd);
  });
  ZelClient_s *client = ZelClient_new();
  ASSERT_NE(nullptr, client);
  EXPECT_TRUE(becomesInvalid(client));
  ZelClient_close(client);
}

TEST_F(HostileServer, thatIsGoneIsNoticedBeforeTheNextRequest)
{
  FakeServer server([](int) {});
  ZelClient_s *client = ZelClient_new();
  ASSERT_NE(nullptr, client);
  EXPECT_TRUE(becomesInvalid(client));
  // Writing to it raises no signal either.
  EXPECT_EQ(nullptr, ask(client));
  ZelClient_close(client);
}

TEST_F(HostileServer, thatComesInTwoPiecesIsUnderstood)
{
  FakeServer server([](int fd) {
    FakeServer::receive(fd);
    std::string bytes = FakeServer::frame("{\"data\":{\"name\":\"" + std::string(50000, 'n') + "\"}}");
    FakeServer::sendRaw(fd, bytes.substr(0, 3));
    ::usleep(1000);
    FakeServer::sendRaw(fd, bytes.substr(3, 20000));
    ::usleep(1000);
    FakeServer::sendRaw(fd, bytes.substr(20003));
    FakeServer::waitForEnd(fd);
  });
  zelclient::setRequestTimeoutMs(5000);
  ZelClient_s *client = ZelClient_new();
  json_t *response = ask(client);
  ASSERT_NE(nullptr, ZelRspUtil_getStringParam(response, "name"));
  EXPECT_EQ(50000u, std::string(ZelRspUtil_getStringParam(response, "name")).size());
  EXPECT_TRUE(ZelClient_isValid(client));
  ZelRspUtil_free(response);
  ZelClient_close(client);
}

TEST_F(HostileServer, thatKeepsTagsIsAskedWithTheTagOfTheKeptAnswer)
{
  std::string second;
  zelclient::setRequestTimeoutMs(5000);
  FakeServer server([&second](int fd) {
    FakeServer::receive(fd);
    FakeServer::send(fd, "{\"data\":{\"name\":\"kept\"},\"tag\":\"a\\\"b\"}");
    second = FakeServer::receive(fd);
    FakeServer::send(fd, "{\"unchanged\":true}");
    FakeServer::waitForEnd(fd);
  });
  ZelClient_s *client = ZelClient_new();
  const char *select = "\"name\",\"of\",\"this\",\"test\"";
  json_t *first = ZelReq_rxRetrieve(client, select);
  json_t *again = ZelReq_rxRetrieve(client, select);
  EXPECT_STREQ("kept", ZelRspUtil_getStringParam(again, "name"));
  EXPECT_EQ(first, again);
  EXPECT_EQ("{\"method\":\"GET\",\"resource\":\"rx\",\"select\":[\"name\",\"of\",\"this\",\"test\"],"
            "\"have\":\"a\\\"b\"}",
            second);
  ZelRspUtil_free(first);
  EXPECT_STREQ("kept", ZelRspUtil_getStringParam(again, "name"));
  ZelRspUtil_free(again);
  ZelClient_close(client);
}

TEST_F(HostileServer, thatSendsManyTaggedAnswersFillsABoundedMemory)
{
  zelclient::setRequestTimeoutMs(5000);
  FakeServer server([](int fd) {
    std::string answer = "{\"data\":{\"name\":\"" + std::string(100000, 'n') + "\"},\"tag\":\"t\"}";
    while (!FakeServer::receive(fd).empty())
      FakeServer::send(fd, answer);
  });
  ZelClient_s *client = ZelClient_new();
  for (unsigned i = 1; i <= 300; ++i)
    ZelRspUtil_free(ZelReq_connectionRetrieveByIndex(client, i));
  EXPECT_LE(zelclient::answerCacheUse().bytes, 16u * 1024 * 1024);
  EXPECT_LE(zelclient::answerCacheUse().entries, 40960u);
  EXPECT_TRUE(ZelClient_isValid(client));
  ZelClient_close(client);
}

} // namespace
