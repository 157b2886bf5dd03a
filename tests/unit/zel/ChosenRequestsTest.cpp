// SPDX-License-Identifier: MIT
// Requests that are refused, or answered late, because somebody at the control channel says so.
#include "RawClient.h"
#include "TestStore.h"

#include <chrono>
#include <gtest/gtest.h>
#include <string>

namespace
{

using std::chrono::milliseconds;
using std::chrono::steady_clock;

class ChosenRequests : public ::testing::Test
{
protected:
  ChosenRequests() : client(store.socket()) {}

  void order(const std::vector<std::string> &words)
  {
    const TestStore::Outcome outcome = store.control(words);
    EXPECT_FALSE(outcome.failed) << outcome.text;
  }

  void expectRefusedOrder(const std::vector<std::string> &words, const std::string &why)
  {
    const TestStore::Outcome outcome = store.control(words);
    EXPECT_TRUE(outcome.failed);
    EXPECT_NE(std::string::npos, outcome.text.find(why)) << outcome.text;
  }

  std::string get(const std::string &resource, unsigned index, const std::string &parameter)
  {
    return client.ask("{\"method\":\"GET\",\"resource\":\"" + resource + "\",\"query\":{\"index\":" +
                      std::to_string(index) + "},\"select\":[\"" + parameter + "\"]}");
  }

  std::string setNotes(unsigned rx, const std::string &text)
  {
    return client.ask("{\"method\":\"SET\",\"resource\":\"rx\",\"params\":{\"index\":" + std::to_string(rx) +
                      ",\"notes\":\"" + text + "\"}}");
  }

  milliseconds timeOf(const std::string &request)
  {
    const auto start = steady_clock::now();
    client.ask(request);
    return std::chrono::duration_cast<milliseconds>(steady_clock::now() - start);
  }

  static bool isRefusal(const std::string &answer) { return answer.rfind("{\"errors\"", 0) == 0; }

  TestStore store;
  RawClient client;
};

TEST_F(ChosenRequests, refusesTheNextOneOnlyAndSaysWhy)
{
  order({"fail", "SET", "rx/notes", "3", "11", "notes"});
  EXPECT_FALSE(isRefusal(setNotes(2, "a")));
  EXPECT_EQ(R"({"errors":[{"errno":11,"detail":"notes"}]})", setNotes(3, "b"));
  EXPECT_EQ("", store.get("rx", 3, "notes"));
  EXPECT_FALSE(isRefusal(setNotes(3, "c")));
  EXPECT_EQ("c", store.get("rx", 3, "notes"));
}

TEST_F(ChosenRequests, refusesSoManyTimesOrAlways)
{
  order({"fail", "GET", "rx", "any", "4", "2"});
  EXPECT_TRUE(isRefusal(get("rx", 1, "name")));
  EXPECT_TRUE(isRefusal(get("rx", 2, "name")));
  EXPECT_FALSE(isRefusal(get("rx", 1, "name")));
  order({"fail", "GET", "rx", "any", "4", "always"});
  for (unsigned i = 1; i <= 5; ++i)
    EXPECT_TRUE(isRefusal(get("rx", i, "name")));
  order({"fail", "off"});
  EXPECT_FALSE(isRefusal(get("rx", 1, "name")));
}

TEST_F(ChosenRequests, knowsARequestByTheParameterThatItNames)
{
  order({"fail", "GET", "rx/status", "1108", "always"});
  EXPECT_FALSE(isRefusal(get("rx", 1, "name")));
  EXPECT_TRUE(isRefusal(get("rx", 1, "status")));
  EXPECT_TRUE(isRefusal(client.ask(R"({"method":"GET","resource":"rx"})")));
  order({"fail", "GET", "swx/network/ipv4", "7"});
  EXPECT_FALSE(
      isRefusal(client.ask(R"({"method":"GET","resource":"swx/network/ipv6","query":{"index":1}})")));
  EXPECT_TRUE(isRefusal(client.ask(R"({"method":"GET","resource":"swx/network/ipv4","query":{"index":1}})")));
}

TEST_F(ChosenRequests, knowsARecordByItsIndexInAListAndByAKey)
{
  order({"fail", "GET", "rx", "3", "6", "always"});
  EXPECT_TRUE(isRefusal(client.ask(R"({"method":"GET","resource":"rx","query":{"index":[1,3]}})")));
  EXPECT_FALSE(isRefusal(client.ask(R"({"method":"GET","resource":"rx","query":{"index":[1,2]}})")));
  order({"fail", "SET", "user", "rokafor", "9"});
  EXPECT_FALSE(isRefusal(
      client.ask(R"({"method":"SET","resource":"user","params":{"name":"operator","fullName":"x"}})")));
  EXPECT_TRUE(isRefusal(
      client.ask(R"({"method":"SET","resource":"user","params":{"name":"rokafor","fullName":"x"}})")));
}

TEST_F(ChosenRequests, answersChosenOnesLater)
{
  order({"delay", "GET", "rx", "2", "300"});
  const std::string readSecond = R"({"method":"GET","resource":"rx","query":{"index":2}})";
  EXPECT_LT(timeOf(R"({"method":"GET","resource":"rx","query":{"index":1}})"), milliseconds(300));
  EXPECT_GE(timeOf(readSecond), milliseconds(300));
  EXPECT_LT(timeOf(readSecond), milliseconds(300));
}

TEST_F(ChosenRequests, addUpWhereOneClientSendsSeveralAtOnce)
{
  order({"delay", "GET", "rx", "any", "150", "2"});
  const std::string both = RawClient::frame(R"({"method":"GET","resource":"rx","query":{"index":1}})") +
                           RawClient::frame(R"({"method":"GET","resource":"rx","query":{"index":2}})");
  const auto start = steady_clock::now();
  client.sendRaw(both);
  EXPECT_NE("", client.receive());
  EXPECT_NE("", client.receive());
  EXPECT_GE(steady_clock::now() - start, milliseconds(300));
}

TEST_F(ChosenRequests, keepNobodyElseWaiting)
{
  order({"delay", "GET", "rx", "any", "5000"});
  client.send(R"({"method":"GET","resource":"rx","query":{"index":1}})");
  // The order is gone as soon as the request has been read.
  while (store.control({"delay"}).text != "none\n")
    ;
  RawClient other(store.socket());
  const auto start = steady_clock::now();
  EXPECT_NE("", other.ask(R"({"method":"GET","resource":"rx","query":{"index":1}})"));
  EXPECT_LT(steady_clock::now() - start, milliseconds(4000));
}

TEST_F(ChosenRequests, areShownAndForgottenOnCommand)
{
  order({"fail", "SET", "rx/name", "Desk 3 Traffic", "11", "name", "4"});
  EXPECT_EQ("SET rx/name 3: error 11, value not unique: name, 4 times\n", store.control({"fail"}).text);
  order({"delay", "DELETE", "user", "200", "always"});
  EXPECT_EQ("DELETE user any: 200 ms later, always\n", store.control({"delay"}).text);
  order({"fail", "off"});
  EXPECT_EQ("none\n", store.control({"fail"}).text);
  EXPECT_NE("none\n", store.control({"delay"}).text);
}

TEST_F(ChosenRequests, haveToBePossible)
{
  expectRefusedOrder({"fail", "PUT", "rx", "4"}, "none of GET");
  expectRefusedOrder({"fail", "GET", "rxx", "4"}, "unknown resource");
  expectRefusedOrder({"fail", "CREATE", "rx", "4"}, "knows no CREATE");
  expectRefusedOrder({"fail", "GET", "rx/colour", "4"}, "no parameter");
  expectRefusedOrder({"fail", "GET", "rx", "99", "4"}, "no record");
  expectRefusedOrder({"fail", "GET", "rx", "4711"}, "no error");
  expectRefusedOrder({"fail", "GET", "rx", "1", "4", "name", "often"}, "number of times");
  expectRefusedOrder({"delay", "GET", "rx", "1", "0"}, "milliseconds");
  expectRefusedOrder({"fail", "GET", "rx"}, "usage");
}

TEST(MonitorWork, takesAMomentOnASwitchThatLives)
{
  TestStore store({0, 1, 1, {}});
  RawClient client(store.socket());
  const auto start = steady_clock::now();
  client.ask(R"({"method":"SET","resource":"edidControl","params":{"edidAction":"push","txIndex":4,)"
             R"("edidIndex":2}})");
  EXPECT_GE(steady_clock::now() - start, milliseconds(250));
}

} // namespace
