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

constexpr unsigned kKills = 100;
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

TEST(Durability, ofAcknowledgedWritesSurvivesAHundredKills)
{
  TestStore store;
  std::mt19937 random(20161107);
  std::vector<unsigned> acknowledged(kWriters, 0);
  for (unsigned writer = 0; writer < kWriters; ++writer)
    for (const char *parameter : {"location", "notes"})
      ASSERT_TRUE(store.set("rx", writer + 1, parameter, "0"));
  for (unsigned kill = 0; kill < kKills; ++kill) {
    std::vector<std::thread> writers;
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
  EXPECT_GT(acknowledged[0], kKills / 2);
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
