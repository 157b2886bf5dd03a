// SPDX-License-Identifier: MIT
// The server's side of the wire: what it answers to good and bad frames, and that its clients don't get in
// each other's way.
#include "RawClient.h"
#include "TestStore.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <vector>

namespace
{

using std::chrono::milliseconds;

constexpr const char *kReadName = R"({"method":"GET","resource":"rx","query":{"index":1},"select":["name"]})";

class StoreServer : public ::testing::Test
{
protected:
  StoreServer() : client(store.socket()) {}

  static std::string error(int number) { return "{\"errors\":[{\"errno\":" + std::to_string(number) + "}]}"; }
  static std::string error(int number, const std::string &detail)
  {
    return "{\"errors\":[{\"errno\":" + std::to_string(number) + ",\"detail\":\"" + detail + "\"}]}";
  }

  std::string setNotes(const std::string &text)
  {
    return client.ask(R"({"method":"SET","resource":"rx","params":{"index":1,"notes":")" + text + R"("}})");
  }

  TestStore store;
  RawClient client;
};

std::chrono::milliseconds since(std::chrono::steady_clock::time_point start)
{
  return std::chrono::duration_cast<milliseconds>(std::chrono::steady_clock::now() - start);
}

TEST_F(StoreServer, refusesBadFramesAndServesTheNextOne)
{
  for (const char *text :
       {"", "nonsense", "[]", "7", "{\"method\":\"GET\",\"method\":\"GET\"}", "{\"method\":7}",
        "{\"method\":\"GET\",\"resource\":[]}", "\"\xff\"", R"({"method":"GET","resource":"rx","query":[]})",
        R"({"method":"GET","resource":"rx","select":"name"})",
        R"({"method":"GET","resource":"rx","select":[1]})", R"({"method":"SET","resource":"rx","params":7})"})
    EXPECT_EQ(error(1001), client.ask(text)) << text;
  EXPECT_EQ(error(1001), client.ask(std::string(100000, '[')));
  EXPECT_EQ(error(1002), client.ask("{}"));
  EXPECT_EQ(error(1003), client.ask(R"({"method":"GET"})"));
  EXPECT_EQ(error(1004), client.ask(R"({"method":"PUT","resource":"rx"})"));
  EXPECT_EQ(error(1005), client.ask(R"({"method":"GET","resource":"rxx"})"));
  EXPECT_EQ(error(1005), client.ask(R"({"method":"GET","resource":"swx/network/ipv5"})"));
  EXPECT_NE(std::string::npos, client.ask(kReadName).find("\"data\""));
}

TEST_F(StoreServer, namesEveryParamThatIsWrong)
{
  std::string answer = client.ask(
      R"({"method":"SET","resource":"rx","params":{"index":1,"name":7,"nothing":1,"videoScaling":"perhaps"}})");
  EXPECT_NE(std::string::npos, answer.find(R"({"errno":17,"detail":"name"})")) << answer;
  EXPECT_NE(std::string::npos, answer.find(R"({"errno":1013})")) << answer;
  EXPECT_NE(std::string::npos, answer.find(R"({"errno":12,"detail":"videoScaling"})")) << answer;
}

TEST_F(StoreServer, changesNothingForARequestThatIsPartlyWrong)
{
  ASSERT_TRUE(store.set("rx", 1, "notes", "before"));
  client.ask(R"({"method":"SET","resource":"rx","params":{"index":1,"notes":"after","nothing":1}})");
  EXPECT_EQ("before", store.get("rx", 1, "notes"));
}

TEST_F(StoreServer, wantsToKnowWhichRecordToWrite)
{
  EXPECT_EQ(error(1008), client.ask(R"({"method":"SET","resource":"rx","params":{"notes":"x"}})"));
  EXPECT_EQ(error(7), client.ask(R"({"method":"SET","resource":"rx","params":{"index":999,"notes":"x"}})"));
  EXPECT_EQ(error(17, "index"),
            client.ask(R"({"method":"SET","resource":"rx","params":{"index":{},"notes":"x"}})"));
  EXPECT_EQ(error(7), client.ask(R"({"method":"DELETE","resource":"connection","params":{"index":4711}})"));
  EXPECT_EQ(error(1007), client.ask(R"({"method":"SET","resource":"rx"})"));
}

TEST_F(StoreServer, findsARecordByItsLookupKey)
{
  std::string eid = store.get("rx", 2, "eid");
  EXPECT_EQ(R"({"data":{}})", client.ask(R"({"method":"SET","resource":"rx","params":{"eid":")" + eid +
                                         R"(","notes":"by eid"}})"));
  EXPECT_EQ("by eid", store.get("rx", 2, "notes"));
}

TEST_F(StoreServer, answersNestedObjectsByTheirPath)
{
  std::string answer = client.ask(
      R"({"method":"GET","resource":"swx/network/ipv4","query":{"index":1},"select":["ipAddress"]})");
  EXPECT_EQ(0u, answer.find(R"({"data":{"index":1,"ipAddress":")")) << answer;
  EXPECT_EQ(error(1013),
            client.ask(R"({"method":"GET","resource":"swx/network/ipv4","select":["nothing"]})"));
}

TEST_F(StoreServer, neverAnswersAPassword)
{
  std::string answer = client.ask(R"({"method":"GET","resource":"user"})");
  EXPECT_NE(std::string::npos, answer.find("\"fullName\""));
  EXPECT_EQ(std::string::npos, answer.find("\"password\""));
  EXPECT_EQ(std::string::npos, answer.find("pbkdf2"));
  answer = client.ask(R"({"method":"GET","resource":"user","query":{"index":1},"select":["password"]})");
  EXPECT_EQ(0u, answer.find(R"({"data":{})"));
  EXPECT_EQ(std::string::npos, answer.find("pbkdf2"));
  EXPECT_EQ("(secret)", store.get("user", 1, "password"));
}

TEST_F(StoreServer, saysUnchangedToWhoHoldsTheAnswer)
{
  std::string answer = client.ask(R"({"method":"GET","resource":"rx"})");
  std::size_t at = answer.rfind(",\"tag\":\"");
  ASSERT_NE(std::string::npos, at);
  std::string tag = answer.substr(at + 8, answer.rfind('"') - at - 8);
  std::string again = R"({"method":"GET","resource":"rx","have":")" + tag + "\"}";
  EXPECT_EQ(R"({"unchanged":true})", client.ask(again));
  setNotes("something new");
  EXPECT_NE(std::string::npos, client.ask(again).find("something new"));
}

TEST_F(StoreServer, givesATagThatNoLaterRunOfItTakesForItsOwn)
{
  std::string answer = client.ask(R"({"method":"GET","resource":"rx"})");
  std::size_t at = answer.rfind(",\"tag\":\"");
  std::string tag = answer.substr(at + 8, answer.rfind('"') - at - 8);
  store.restart();
  RawClient next(store.socket());
  EXPECT_EQ(0u, next.ask(R"({"method":"GET","resource":"rx","have":")" + tag + "\"}").find("{\"data\":["));
}

TEST_F(StoreServer, endsAConnectionWhoseFrameIsTooLong)
{
  client.sendRaw("\x7f\xff\xff\xff");
  EXPECT_EQ(error(1001), client.receive());
  EXPECT_EQ("", client.receive());
  EXPECT_NE("", RawClient(store.socket()).ask(kReadName));
}

TEST_F(StoreServer, answersRequestsThatComeInPiecesAndInHeaps)
{
  std::string heap;
  for (int i = 0; i < 100; ++i)
    heap += RawClient::frame(kReadName);
  for (std::size_t at = 0; at < heap.size(); at += 333)
    client.sendRaw(std::string_view(heap).substr(at, 333));
  for (int i = 0; i < 100; ++i)
    ASSERT_NE(std::string::npos, client.receive().find("\"name\""));
}

TEST_F(StoreServer, servesThreeHundredClientsAtOnce)
{
  std::vector<RawClient> clients;
  for (int i = 0; i < 300; ++i)
    clients.emplace_back(store.socket());
  for (int round = 0; round < 3; ++round) {
    for (RawClient &one : clients)
      one.send(kReadName);
    for (RawClient &one : clients)
      ASSERT_NE(std::string::npos, one.receive().find("\"name\""));
  }
}

TEST_F(StoreServer, letsNoSlowReaderDelayTheOthers)
{
  std::vector<RawClient> slow;
  for (int i = 0; i < 20; ++i) {
    slow.emplace_back(store.socket());
    // Answers of some megabytes that nobody takes.
    for (int k = 0; k < 200; ++k)
      slow.back().send(R"({"method":"GET","resource":"rx"})");
  }
  auto start = std::chrono::steady_clock::now();
  for (int i = 0; i < 100; ++i)
    ASSERT_NE("", client.ask(kReadName));
  EXPECT_LT(since(start), milliseconds(2000));
  // A slow reader gets all of it in the end.
  for (int k = 0; k < 200; ++k)
    ASSERT_NE("", slow[7].receive());
}

TEST_F(StoreServer, letsNoChattyClientStarveTheOthers)
{
  RawClient chatty(store.socket());
  std::string heap;
  for (int i = 0; i < 2000; ++i)
    heap += RawClient::frame(kReadName);
  chatty.sendRaw(std::string_view(heap).substr(0, 100000));
  auto start = std::chrono::steady_clock::now();
  ASSERT_NE("", client.ask(kReadName));
  EXPECT_LT(since(start), milliseconds(1000));
}

TEST_F(StoreServer, showsTheFaultsThatItIsToldToShow)
{
  ASSERT_FALSE(store.control({"slow", "150"}).failed);
  auto start = std::chrono::steady_clock::now();
  EXPECT_NE("", client.ask(kReadName));
  EXPECT_GE(since(start), milliseconds(150));
  ASSERT_FALSE(store.control({"slow", "off"}).failed);

  ASSERT_FALSE(store.control({"cut"}).failed);
  EXPECT_EQ("", client.ask(kReadName));
  RawClient second(store.socket());
  EXPECT_NE("", second.ask(kReadName));

  ASSERT_FALSE(store.control({"drop"}).failed);
  EXPECT_EQ("", second.receive());

  ASSERT_FALSE(store.control({"refuse", "on"}).failed);
  // It takes effect in the turn that answers the command, which may end after the answer.
  while (RawClient(store.socket()).fd() >= 0)
    continue;
  ASSERT_FALSE(store.control({"refuse", "off"}).failed);
  while (RawClient(store.socket()).fd() < 0)
    continue;

  RawClient third(store.socket());
  ASSERT_FALSE(store.control({"silent", "on"}).failed);
  third.send(kReadName);
  ASSERT_FALSE(store.control({"get", "rx", "1", "name"}).failed);
  ASSERT_FALSE(store.control({"silent", "off"}).failed);
  third.send(R"({"method":"GET","resource":"rx","query":{"index":1},"select":["eid"]})");
  EXPECT_NE(std::string::npos, third.receive().find("\"eid\""));
}

TEST_F(StoreServer, explainsRefusedControlCommands)
{
  EXPECT_TRUE(store.control({}).failed);
  EXPECT_NE(std::string::npos, store.control({"dance"}).text.find("unknown command"));
  EXPECT_NE(std::string::npos, store.control({"slow"}).text.find("usage: slow"));
  EXPECT_NE(std::string::npos, store.control({"set", "rx", "1", "videoScaling", "x"}).text.find("error 12"));
  EXPECT_NE(std::string::npos, store.control({"get", "rx", "999"}).text.find("no record"));
  EXPECT_FALSE(store.control({"describe"}).failed);
}

TEST_F(StoreServer, endsOnCommand)
{
  ASSERT_FALSE(store.control({"quit"}).failed);
  EXPECT_EQ(0, store.wait());
}

TEST_F(StoreServer, acknowledgesNothingThatDoesNotFitOnTheDisk)
{
  ASSERT_EQ(R"({"data":{}})", setNotes("fits"));
  rlimit nothing{0, RLIM_INFINITY};
  ASSERT_EQ(0, ::prlimit(store.pid(), RLIMIT_FSIZE, &nothing, nullptr));
  EXPECT_EQ(error(1), setNotes("does not fit"));
  EXPECT_EQ("fits", store.get("rx", 1, "notes"));
  rlimit all{RLIM_INFINITY, RLIM_INFINITY};
  ASSERT_EQ(0, ::prlimit(store.pid(), RLIMIT_FSIZE, &all, nullptr));
  EXPECT_EQ(R"({"data":{}})", setNotes("fits again"));
  store.restart();
  EXPECT_EQ("fits again", store.get("rx", 1, "notes"));
}

} // namespace
