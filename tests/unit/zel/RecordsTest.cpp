// SPDX-License-Identifier: MIT
// The records in memory and their journal.
#include "data/Journal.h"
#include "data/Store.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>
#include <sqlite3.h>
#include <string>
#include <sys/resource.h>

namespace
{

using namespace zelsim;

class Records : public ::testing::Test
{
protected:
  Records()
  {
    std::string name = "/tmp/nevo-records-XXXXXX";
    directory = ::mkdtemp(&name[0]);
    path = directory + "/store.db";
  }
  ~Records() override { std::filesystem::remove_all(directory); }

  std::unique_ptr<Store> open()
  {
    std::string problem;
    std::unique_ptr<Journal> journal = Journal::open(path, problem);
    EXPECT_EQ("", problem);
    auto store = std::make_unique<Store>(std::move(journal));
    EXPECT_TRUE(store->load(problem)) << problem;
    return store;
  }

  // Why the database can't be opened; empty if it can.
  std::string problemOfOpening()
  {
    std::string problem;
    std::unique_ptr<Journal> journal = Journal::open(path, problem);
    if (journal) {
      Store store(std::move(journal));
      store.load(problem);
    }
    return problem;
  }

  static void commit(Store &store)
  {
    std::string problem;
    EXPECT_TRUE(store.commit(problem)) << problem;
  }

  void runSql(const char *statement)
  {
    sqlite3 *database = nullptr;
    sqlite3_open(path.c_str(), &database);
    EXPECT_EQ(SQLITE_OK, sqlite3_exec(database, statement, nullptr, nullptr, nullptr));
    sqlite3_close(database);
  }

  std::string directory;
  std::string path;
};

TEST_F(Records, haveTheirDefaultsUntilTheyAreWritten)
{
  auto store = open();
  EXPECT_TRUE(store->wasEmpty());
  unsigned rx = store->create("rx");
  EXPECT_EQ(1u, rx);
  EXPECT_EQ("", store->text("rx", rx, "name"));
  store->setText("rx", rx, "name", "Desk");
  EXPECT_EQ("Desk", store->text("rx", rx, "name"));
  EXPECT_EQ("", store->text("rx", 99, "name"));
  EXPECT_EQ("", store->text("rx", rx, "no such parameter"));
  EXPECT_EQ(0u, store->create("no such resource"));
}

TEST_F(Records, areThereAgainAfterACommitAndAReopening)
{
  {
    auto store = open();
    store->create("user", 3);
    store->setText("user", 3, "name", "Zoë \"東京\"\n");
    Json shortCuts(
        json_loads(R"({"osdShortCuts":[{"functionKey":"f1","action":"none","txEID":""}]})", 0, nullptr));
    store->setNested("user", 3, "keySettings", shortCuts.get());
    store->setNumber("systemGlobals", 0, "nevoInactivityTimeout", 7);
    commit(*store);
  }
  auto store = open();
  EXPECT_FALSE(store->wasEmpty());
  EXPECT_EQ("Zoë \"東京\"\n", store->text("user", 3, "name"));
  EXPECT_EQ(7, store->number("systemGlobals", 0, "nevoInactivityTimeout"));
  Json kept = store->nested("user", 3, "keySettings");
  EXPECT_EQ(1u, json_array_size(json_object_get(kept.get(), "osdShortCuts")));
}

TEST_F(Records, thatWereRemovedStayRemoved)
{
  {
    auto store = open();
    store->create("user");
    store->create("user");
    commit(*store);
    store->remove("user", 1);
    commit(*store);
  }
  auto store = open();
  EXPECT_EQ(std::vector<unsigned>{2}, store->indexes("user"));
  EXPECT_EQ(1u, store->create("user"));
}

TEST_F(Records, returnToTheirMarkInEveryRespect)
{
  auto store = open();
  store->create("user");
  store->setText("user", 1, "name", "before");
  commit(*store);
  std::int64_t counter = store->number("changeStatus", 6, "lastChange");
  Store::Mark mark = store->mark();
  store->setText("user", 1, "name", "after");
  store->create("user");
  store->remove("user", 1);
  store->rollback(mark);
  EXPECT_EQ("before", store->text("user", 1, "name"));
  EXPECT_EQ(1u, store->count("user"));
  EXPECT_EQ(counter, store->number("changeStatus", 6, "lastChange"));
  EXPECT_FALSE(store->hasUncommitted());
}

TEST_F(Records, moveTheirCounterExactlyWhenTheyChange)
{
  auto store = open();
  store->create("user");
  commit(*store);
  auto counter = [&store](unsigned id) { return store->number("changeStatus", id, "lastChange"); };
  std::int64_t users = counter(6);
  std::int64_t receivers = counter(7);
  store->setText("user", 1, "fullName", "a");
  EXPECT_GT(counter(6), users);
  EXPECT_EQ(receivers, counter(7));
  commit(*store);
  users = counter(6);
  store->setText("user", 1, "fullName", "a");
  EXPECT_EQ(users, counter(6));
  EXPECT_FALSE(store->hasUncommitted());
  store->setText("user", 1, "fullName", "b");
  store->rollback(0);
  EXPECT_EQ(users, counter(6));
  store->setText("user", 1, "fullName", "c");
  EXPECT_GT(counter(6), users);
}

TEST_F(Records, keepTheirCountersOverARestart)
{
  std::int64_t before = 0;
  {
    auto store = open();
    store->create("user");
    commit(*store);
    store->setText("user", 1, "name", "a");
    commit(*store);
    before = store->number("changeStatus", 6, "lastChange");
  }
  EXPECT_EQ(before, open()->number("changeStatus", 6, "lastChange"));
}

TEST_F(Records, neverShowTheSameRevisionForOtherData)
{
  auto store = open();
  const Resource &user = *findResource("user");
  store->create("user");
  std::uint64_t first = store->revision(user);
  store->setText("user", 1, "name", "a");
  std::uint64_t second = store->revision(user);
  EXPECT_GT(second, first);
  store->rollback(store->mark() - 1);
  EXPECT_GT(store->revision(user), second);
}

TEST_F(Records, areLimitedInNumber)
{
  auto store = open();
  const Resource &upgrade = *findResource("upgrade");
  for (unsigned i = 0; i < upgrade.capacity; ++i)
    EXPECT_NE(0u, store->create("upgrade"));
  EXPECT_EQ(0u, store->create("upgrade"));
  EXPECT_EQ(1u, store->create("user", 1));
  EXPECT_EQ(0u, store->create("user", 1));
}

TEST_F(Records, thatCouldNotBeWrittenAreTakenBack)
{
  auto store = open();
  store->create("rx");
  store->setText("rx", 1, "notes", "kept");
  commit(*store);
  // A size limit on files is what a full disk looks like from here.
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit before{};
  ::getrlimit(RLIMIT_FSIZE, &before);
  rlimit tight = before;
  tight.rlim_cur = std::filesystem::file_size(path + "-wal");
  ::setrlimit(RLIMIT_FSIZE, &tight);
  store->setText("rx", 1, "notes", std::string(200000, 'x'));
  std::string problem;
  bool written = store->commit(problem);
  ::setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_FALSE(written);
  EXPECT_NE("", problem);
  EXPECT_EQ("kept", store->text("rx", 1, "notes"));
  store->setText("rx", 1, "notes", "room again");
  commit(*store);
  store.reset();
  EXPECT_EQ("room again", open()->text("rx", 1, "notes"));
}

TEST_F(Records, ofADatabaseInUseAreRefused)
{
  auto store = open();
  EXPECT_NE(std::string::npos, problemOfOpening().find("locked"));
}

TEST_F(Records, ofANewerVersionAreRefusedAndLeftAlone)
{
  commit(*open());
  runSql("PRAGMA user_version=2");
  EXPECT_NE(std::string::npos, problemOfOpening().find("version 2"));
  EXPECT_NE(std::string::npos, problemOfOpening().find("version 2"));
}

TEST_F(Records, ofAnotherProgramAreRefused)
{
  runSql("CREATE TABLE other (x)");
  EXPECT_NE(std::string::npos, problemOfOpening().find("something other"));
}

TEST_F(Records, ofAFileThatIsNoDatabaseAreRefusedAndLeftAlone)
{
  std::ofstream(path) << std::string(10000, 'n');
  EXPECT_NE(std::string::npos, problemOfOpening().find("not a database"));
  EXPECT_EQ(10000u, std::filesystem::file_size(path));
}

TEST_F(Records, ofADamagedDatabaseAreRefused)
{
  {
    auto store = open();
    for (int i = 0; i < 100; ++i) {
      unsigned user = store->create("rx");
      store->setText("rx", user, "notes", std::string(1000, 'x'));
    }
    commit(*store);
  }
  std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
  file.seekp(3 * 4096);
  file << std::string(3 * 4096, '\x5a');
  file.close();
  EXPECT_NE("", problemOfOpening());
}

TEST_F(Records, whoseTextIsNoJsonAreRefused)
{
  {
    auto store = open();
    store->create("user");
    store->setText("user", 1, "name", "a");
    commit(*store);
  }
  runSql("UPDATE record SET body='{' WHERE resource='user'");
  EXPECT_NE(std::string::npos, problemOfOpening().find("\"user\""));
}

TEST_F(Records, inADirectoryThatIsNotThereAreRefused)
{
  path = directory + "/none/store.db";
  EXPECT_NE("", problemOfOpening());
}

} // namespace
