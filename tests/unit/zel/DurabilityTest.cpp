// SPDX-License-Identifier: MIT
// The store is killed again and again while clients write: what was acknowledged is there afterwards, and
// no write is there by half.
#include "TestStore.h"
#include "ZelClient.h"
#include "ZelObj.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"
#include "data/WriteAheadLog.h"

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <random>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace
{

// NEVO_KILLS=1000 is for whoever has some minutes.
unsigned kills()
{
  const char *wanted = std::getenv("NEVO_KILLS");
  return wanted ? static_cast<unsigned>(std::stoul(wanted)) : 100;
}

constexpr unsigned kWriters = 3;

struct ClientCloser {
  void operator()(ZelClient_s *client) const { ZelClient_close(client); }
};
using Client = std::unique_ptr<ZelClient_s, ClientCloser>;

// One request that writes the same number to two parameters of a record. True if it was acknowledged.
bool writePair(ZelClient_s *client, unsigned index, unsigned number)
{
  std::string text = std::to_string(number);
  json_t *request = ZelReqUtil_newSetResource("rx");
  ZelReqUtil_setIntegerParam(request, "index", index);
  ZelReqUtil_setStringParam(request, "location", text.c_str());
  ZelReqUtil_setStringParam(request, "notes", text.c_str());
  json_t *response = ZelReqUtil_submit(request, client);
  bool acknowledged = response && !ZelRspUtil_getObjectParam(response, "errors");
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return acknowledged;
}

// Writes numbers from `next` on until the store is gone. Returns the last that was acknowledged.
unsigned writeUntilGone(unsigned index, unsigned next)
{
  Client client(ZelClient_new());
  while (writePair(client.get(), index, next))
    ++next;
  return next - 1;
}

// One request with a text parameter. True if the store answered, whatever it said.
bool setText(ZelClient_s *client, const char *resource, unsigned index, const char *parameter,
             const char *text)
{
  json_t *request = ZelReqUtil_newSetResource(resource);
  ZelReqUtil_setIntegerParam(request, "index", index);
  ZelReqUtil_setStringParam(request, parameter, text);
  json_t *response = ZelReqUtil_submit(request, client);
  ZelReqUtil_free(request);
  ZelRspUtil_free(response);
  return response != nullptr;
}

// Has steps under way all the time until the store is gone: links of a peer and answers of time servers.
void stepUntilGone()
{
  Client client(ZelClient_new());
  for (unsigned i = 0;; ++i) {
    const char *server = i % 2 == 0 ? "10.1.1.1" : "192.0.2.1";
    if (!setText(client.get(), "swxControl", 2, "cascadeRoleAction", "link_peer") ||
        !setText(client.get(), "swx", 3, "primaryNtpIpAddress", server) ||
        !setText(client.get(), "swxControl", 1, "cascadeRoleAction", "unlink_peer"))
      return;
  }
}

// What is not at its end yet has a step that leads there.
void expectNoHalfStep(const TestStore &store)
{
  // In this order, since a step may be taken in between.
  const bool isUnderWay = !store.control({"list", "pendingStep"}).text.empty();
  const bool isLinked = !store.get("systemGlobals", 0, "peerControllerSwitchEid").empty();
  const std::string role = store.get("swx", 2, "cascadeRole");
  EXPECT_TRUE(isUnderWay || !isLinked || role == "backup") << role;
  EXPECT_TRUE(isLinked || role == "slave") << role;
  EXPECT_TRUE(isUnderWay || store.get("swx", 3, "ntpStatus") != "pending");
}

TEST(Durability, ofAcknowledgedWritesAndStepsUnderWaySurvivesKills)
{
  TestStore store;
  std::mt19937 random(20161107);
  std::vector<unsigned> acknowledged(kWriters, 0);
  for (unsigned writer = 0; writer < kWriters; ++writer)
    for (const char *parameter : {"location", "notes"})
      ASSERT_TRUE(store.set("rx", writer + 1, parameter, "0"));
  ASSERT_TRUE(store.set("swx", 3, "ntpEnable", "enabled"));
  for (unsigned kill = 0; kill < kills(); ++kill) {
    std::vector<std::thread> writers;
    writers.emplace_back(stepUntilGone);
    for (unsigned writer = 0; writer < kWriters; ++writer)
      writers.emplace_back([&acknowledged, writer] {
        acknowledged[writer] = writeUntilGone(writer + 1, acknowledged[writer] + 1);
      });
    // The moment of the kill is the one thing here that is left to chance.
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20000));
    store.kill();
    for (std::thread &writer : writers)
      writer.join();
    store.restart();
    expectNoHalfStep(store);
    for (unsigned writer = 0; writer < kWriters; ++writer) {
      std::string location = store.get("rx", writer + 1, "location");
      ASSERT_EQ(location, store.get("rx", writer + 1, "notes")) << "a write is there by half";
      unsigned found = static_cast<unsigned>(std::stoul(location));
      // The write that was under way may have been kept, unacknowledged.
      ASSERT_GE(found, acknowledged[writer]) << "an acknowledged write is lost";
      ASSERT_LE(found, acknowledged[writer] + 1);
      acknowledged[writer] = found;
    }
  }
  EXPECT_GT(acknowledged[0], kills() / 2);
}

TEST(Durability, theDatabaseIsForItsOwnerOnly)
{
  const TestStore store;
  for (const char *end : {"", "-wal"}) {
    struct stat file {
    };
    ASSERT_EQ(0, ::stat((store.database() + end).c_str(), &file)) << end;
    EXPECT_EQ(0600u, file.st_mode & 0777u) << end;
  }
}

TEST(Durability, aLostLogOfWritesLosesNoAccounts)
{
  TestStore store;
  store.kill();
  std::filesystem::remove(store.database() + "-wal");
  store.restart();
  EXPECT_EQ("operator", store.get("user", 2, "name"));
  EXPECT_EQ("is_true", store.get("user", 2, "passwordIsInitialized"));
}

TEST(Durability, aDamagedLogOfWritesIsTold)
{
  TestStore store;
  ASSERT_TRUE(store.set("rx", 1, "notes", "x"));
  const std::string log = store.database() + "-wal";
  store.kill();
  EXPECT_EQ("", zelsim::damageOfLog(log));
  std::filesystem::resize_file(log, std::filesystem::file_size(log) - 100);
  EXPECT_NE("", zelsim::damageOfLog(log));
  {
    std::fstream file(log, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(2000);
    file << "garbage";
  }
  EXPECT_NE("", zelsim::damageOfLog(log));
  std::ofstream(log, std::ios::trunc | std::ios::binary) << std::string(5000, 'x');
  EXPECT_NE("", zelsim::damageOfLog(log));
  store.restart();
  EXPECT_EQ("operator", store.get("user", 2, "name"));
}

} // namespace
