// SPDX-License-Identifier: MIT
#include "data/Journal.h"

#include "data/WriteAheadLog.h"

#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zelsim
{

namespace
{

constexpr std::int64_t kVersion = 1;
constexpr std::int64_t kApplicationId = 0x5a454c31; // "ZEL1"

// Steps a statement that returns no rows and makes it ready for the next use.
bool runPrepared(sqlite3_stmt *statement)
{
  int result = sqlite3_step(statement);
  sqlite3_reset(statement);
  sqlite3_clear_bindings(statement);
  return result == SQLITE_DONE;
}

// The hashes of all accounts are in there. The files beside it take the mode of the database.
void keepPrivate(const std::string &path)
{
  if (path == ":memory:")
    return;
  const int file = ::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0)
    return;
  ::fchmod(file, 0600);
  ::close(file);
}

} // namespace

std::unique_ptr<Journal> Journal::open(const std::string &path, std::string &problem)
{
  std::unique_ptr<Journal> journal(new Journal);
  std::string why;
  keepPrivate(path);
  if (const std::string damage = damageOfLog(path + "-wal"); !damage.empty())
    std::fprintf(stderr, "zelsim: database %s: %s; what was written last may be lost\n", path.c_str(),
                 damage.c_str());
  if (sqlite3_open_v2(path.c_str(), &journal->database_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE,
                      nullptr) != SQLITE_OK) {
    why = journal->database_ ? sqlite3_errmsg(journal->database_) : "out of memory";
  } else {
    // A store that was just killed may still hold its lock for a moment.
    sqlite3_busy_timeout(journal->database_, 2000);
    // What is committed is with the system's file cache before write() returns, so the death of this process
    // loses none of it. The disk has it at the next checkpoint at the latest: a loss of power may take the
    // last moments, whole commits each. Waiting for the disk at every commit took 2.6 ms a write.
    // Exclusive: a second store on the same file would not see this one's memory.
    bool ready = journal->run("PRAGMA locking_mode=EXCLUSIVE", why) && journal->checkVersion(why) &&
                 journal->run("PRAGMA journal_mode=WAL", why) &&
                 journal->run("PRAGMA synchronous=NORMAL", why) && journal->prepare(why);
    if (ready)
      return journal;
  }
  problem = "database " + path + ": " + why;
  return nullptr;
}

Journal::~Journal()
{
  sqlite3_finalize(put_);
  sqlite3_finalize(remove_);
  sqlite3_close(database_);
}

bool Journal::run(const char *statement, std::string &problem)
{
  if (sqlite3_exec(database_, statement, nullptr, nullptr, nullptr) == SQLITE_OK)
    return true;
  problem = sqlite3_errmsg(database_);
  return false;
}

std::int64_t Journal::readPragma(const char *statement)
{
  sqlite3_stmt *query = nullptr;
  std::int64_t value = -1;
  if (sqlite3_prepare_v2(database_, statement, -1, &query, nullptr) == SQLITE_OK &&
      sqlite3_step(query) == SQLITE_ROW)
    value = sqlite3_column_int64(query, 0);
  sqlite3_finalize(query);
  return value;
}

bool Journal::checkVersion(std::string &problem)
{
  std::int64_t tables = readPragma("SELECT count(*) FROM sqlite_master");
  if (tables < 0) {
    problem = sqlite3_errmsg(database_);
    return false;
  }
  if (tables == 0)
    return run("BEGIN IMMEDIATE", problem) && run("PRAGMA application_id=1514490929", problem) &&
           run("PRAGMA user_version=1", problem) &&
           run("CREATE TABLE record (resource TEXT NOT NULL, number INTEGER NOT NULL, body TEXT NOT NULL, "
               "PRIMARY KEY (resource, number)) WITHOUT ROWID",
               problem) &&
           run("COMMIT", problem);
  if (readPragma("PRAGMA application_id") != kApplicationId) {
    problem = "holds something other than a store";
    return false;
  }
  std::int64_t version = readPragma("PRAGMA user_version");
  if (version != kVersion) {
    problem =
        "is of version " + std::to_string(version) + ", this store knows version " + std::to_string(kVersion);
    return false;
  }
  sqlite3_stmt *query = nullptr;
  bool sound = sqlite3_prepare_v2(database_, "PRAGMA quick_check(1)", -1, &query, nullptr) == SQLITE_OK &&
               sqlite3_step(query) == SQLITE_ROW &&
               std::string_view(reinterpret_cast<const char *>(sqlite3_column_text(query, 0))) == "ok";
  sqlite3_finalize(query);
  if (!sound)
    problem = "is damaged";
  return sound;
}

bool Journal::checkpoint(std::string &problem)
{
  return run("PRAGMA wal_checkpoint(TRUNCATE)", problem);
}

bool Journal::prepare(std::string &problem)
{
  if (sqlite3_prepare_v3(database_, "INSERT OR REPLACE INTO record VALUES (?,?,?)", -1,
                         SQLITE_PREPARE_PERSISTENT, &put_, nullptr) == SQLITE_OK &&
      sqlite3_prepare_v3(database_, "DELETE FROM record WHERE resource=? AND number=?", -1,
                         SQLITE_PREPARE_PERSISTENT, &remove_, nullptr) == SQLITE_OK)
    return true;
  problem = sqlite3_errmsg(database_);
  return false;
}

bool Journal::load(const Visitor &visit, std::string &problem)
{
  sqlite3_stmt *query = nullptr;
  int result =
      sqlite3_prepare_v2(database_, "SELECT resource, number, body FROM record", -1, &query, nullptr);
  bool going = result == SQLITE_OK;
  while (going && (result = sqlite3_step(query)) == SQLITE_ROW) {
    auto column = [query](int i) {
      const char *text = reinterpret_cast<const char *>(sqlite3_column_text(query, i));
      return text ? std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(query, i)))
                  : std::string_view();
    };
    going = visit(column(0), static_cast<unsigned>(sqlite3_column_int64(query, 1)), column(2));
    if (!going)
      problem = "a record of \"" + std::string(column(0)) + "\" is damaged";
  }
  if (going && result != SQLITE_DONE)
    problem = sqlite3_errmsg(database_);
  sqlite3_finalize(query);
  return going && result == SQLITE_DONE;
}

bool Journal::writeOne(const Change &change, std::string &problem)
{
  sqlite3_stmt *statement = change.removed ? remove_ : put_;
  sqlite3_bind_text(statement, 1, change.resource.data(), static_cast<int>(change.resource.size()),
                    SQLITE_STATIC);
  sqlite3_bind_int64(statement, 2, change.index);
  if (!change.removed)
    sqlite3_bind_text(statement, 3, change.body.data(), static_cast<int>(change.body.size()), SQLITE_STATIC);
  if (runPrepared(statement))
    return true;
  problem = sqlite3_errmsg(database_);
  return false;
}

bool Journal::write(const std::vector<Change> &changes, std::string &problem)
{
  bool done = run("BEGIN IMMEDIATE", problem);
  for (auto change = changes.begin(); done && change != changes.end(); ++change)
    done = writeOne(*change, problem);
  if (done && run("COMMIT", problem))
    return true;
  if (!sqlite3_get_autocommit(database_)) {
    std::string ignored; // the first problem is the one to report
    run("ROLLBACK", ignored);
  }
  return false;
}

} // namespace zelsim
