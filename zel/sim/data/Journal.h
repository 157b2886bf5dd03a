// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_JOURNAL_H_
#define ZEL_SIM_DATA_JOURNAL_H_

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct sqlite3;
struct sqlite3_stmt;

namespace zelsim
{

/// The database behind the store: a row per record, its values as one JSON object. What write() has
/// returned true for survives the death of the process. A loss of power may take the last commits, in the
/// order of their coming, and never a part of one.
/// Its files are for their owner only. A log of writes that doesn't read to its end is told on stderr: the
/// database is whole, but may be of an earlier moment.
class Journal
{
public:
  /// Opens or makes the database; ":memory:" makes one that ends with the process. Null, and `problem`
  /// for a person to read, when it can't be opened, is no database, is damaged, is in use by another
  /// process, is not a store's or is of a newer version. Such a file is left as it is.
  static std::unique_ptr<Journal> open(const std::string &path, std::string &problem);
  ~Journal();
  Journal(const Journal &) = delete;
  Journal &operator=(const Journal &) = delete;

  using Visitor = std::function<bool(std::string_view resource, unsigned index, std::string_view body)>;
  /// Shows every record to `visit`, which returns false to give up. False with `problem` on a failure.
  bool load(const Visitor &visit, std::string &problem);

  struct Change {
    std::string_view resource;
    unsigned index;
    bool removed;
    std::string body;
  };
  /// All of the changes, durably, or none of them: false and `problem`.
  bool write(const std::vector<Change> &changes, std::string &problem);

  /// Brings everything into the database itself, so that it doesn't hang on the log beside it.
  bool checkpoint(std::string &problem);

private:
  Journal() = default;
  bool run(const char *statement, std::string &problem);
  bool prepare(std::string &problem);
  bool writeOne(const Change &change, std::string &problem);
  std::int64_t readPragma(const char *statement);
  bool checkVersion(std::string &problem);

  sqlite3 *database_ = nullptr;
  sqlite3_stmt *put_ = nullptr;
  sqlite3_stmt *remove_ = nullptr;
};

} // namespace zelsim

#endif // ZEL_SIM_DATA_JOURNAL_H_
