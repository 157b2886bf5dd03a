// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_STORE_H_
#define ZEL_SIM_DATA_STORE_H_

#include "data/Catalogue.h"
#include "data/Value.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zelsim
{

class Journal;

/// All records in memory, and what changed since the last commit.
///
/// A write takes effect in memory at once. It can be taken back to a mark() (a request that fails half
/// way leaves nothing behind) until commit() has put everything that changed into the database in one
/// transaction. The server commits once per turn of its loop and holds all answers until then, so what a
/// client was told is on the disk. Writing a value that is already there is no change: it moves no
/// counter, no revision, and costs no transaction.
///
/// Resources and parameters are named as in the catalogue. A name that is not there, or a record that is
/// not there, reads as empty and takes no write. Single-record resources have index 0.
class Store
{
public:
  /// `journal` may be null: nothing is durable then. load() comes next, before anything else.
  explicit Store(std::unique_ptr<Journal> journal);
  ~Store();
  Store(const Store &) = delete;
  Store &operator=(const Store &) = delete;

  /// Reads what the journal holds and makes the records that are always there. False and `problem` when
  /// the database can't be read.
  bool load(std::string &problem);

  /// True if the database held nothing when it was opened: a fleet is to be made.
  bool wasEmpty() const { return wasEmpty_; }

  /// Reading. A parameter that was never set has its default.
  bool exists(std::string_view resource, unsigned index) const;
  std::size_t count(std::string_view resource) const;
  /// Ascending.
  std::vector<unsigned> indexes(std::string_view resource) const;
  std::string text(std::string_view resource, unsigned index, std::string_view parameter) const;
  std::int64_t number(std::string_view resource, unsigned index, std::string_view parameter) const;
  /// Boolean true, or the word "enabled" or "is_true".
  bool flag(std::string_view resource, unsigned index, std::string_view parameter) const;
  /// A copy of a nested object or list, which may be changed and given to setNested().
  Json nested(std::string_view resource, unsigned index, std::string_view parameter) const;
  /// The lowest index whose parameter has that value, or 0. (So not for single-record resources.)
  unsigned findText(std::string_view resource, std::string_view parameter, std::string_view value) const;
  unsigned findNumber(std::string_view resource, std::string_view parameter, std::int64_t value) const;

  /// Writing. No validation: rules write what they mean. A text that is too long for its parameter is cut,
  /// and a number beyond its bounds becomes the bound. Secrets are to be given hashed (Password.h).
  void setText(std::string_view resource, unsigned index, std::string_view parameter, std::string_view text);
  void setNumber(std::string_view resource, unsigned index, std::string_view parameter, std::int64_t number);
  void setFlag(std::string_view resource, unsigned index, std::string_view parameter, bool flag);
  void setNested(std::string_view resource, unsigned index, std::string_view parameter, const json_t *json);
  /// Back to the defaults, all parameters but those named. Keeps the record.
  void reset(std::string_view resource, unsigned index, const std::vector<std::string_view> &keep);

  /// Makes a record with all defaults and returns its index: `index` if not 0 and free, else the lowest
  /// free one. 0 if the resource is full or the index is taken.
  unsigned create(std::string_view resource, unsigned index = 0);
  void remove(std::string_view resource, unsigned index);

  /// Moves a change counter by hand, for data that the catalogue doesn't tie to it. Once per commit is
  /// enough however often it is called.
  void touch(unsigned changeId);

  /// A place in the list of uncommitted writes to which rollback() can return.
  using Mark = std::size_t;
  Mark mark() const { return undo_.size(); }
  void rollback(Mark mark);

  bool hasUncommitted() const { return !undo_.empty(); }
  /// Puts all uncommitted writes into the database. When that fails, takes them all back, and `problem`
  /// says why.
  bool commit(std::string &problem);
  /// Has what was committed so far stand in the database itself. For a start, when nobody waits.
  bool settle(std::string &problem);

  /// For the server, which answers from rows of the catalogue. ---------------------------------------

  struct Record {
    std::vector<Value> values; // by position in the resource's parameters; None is the default
  };
  using Records = std::map<unsigned, Record>;
  const Records &records(const Resource &resource) const;
  /// Grows at every change of the resource, and is never the same for other data during a run.
  std::uint64_t revision(const Resource &resource) const;
  /// The present value, which may be the default; null if there is no such record.
  const Value *value(const Resource &resource, unsigned index, int position) const;
  /// The value of a record of records().
  const Value &value(const Resource &resource, const Record &record, int position) const;
  void set(const Resource &resource, unsigned index, int position, Value value);

private:
  struct Table {
    Records records;
    std::uint64_t revision = 1;
  };
  struct Undo {
    enum class What { Set, Create, Remove } what;
    const Resource *resource;
    unsigned index;
    int position;
    Value value;
    Record record;
  };

  Table &table(const Resource &resource);
  const Table &table(const Resource &resource) const;
  const Value *find(std::string_view resource, unsigned index, std::string_view parameter,
                    const Parameter **row) const;
  void assign(std::string_view resource, unsigned index, std::string_view parameter, Value value);
  void changed(const Resource &resource, const Parameter *parameter);
  bool loadRecord(std::string_view resource, unsigned index, std::string_view body);
  void makeStandingRecords();
  void take(const Undo &undo);
  std::string bodyOf(const Resource &resource, const Record &record) const;

  // The lowest record of each value of a parameter. It is made once somebody has searched the same data
  // several times, and right as long as the revision stands.
  struct Lookup {
    std::uint64_t revision = 0;
    unsigned searches = 0;
    std::unordered_map<std::string_view, unsigned> texts;
    std::unordered_map<std::int64_t, unsigned> numbers;
  };
  /// The lookup of a parameter, or null while a search is as good.
  Lookup *lookup(const Resource &resource, int position) const;

  std::unique_ptr<Journal> journal_;
  std::vector<Table> tables_;                // by position in the catalogue
  std::vector<std::vector<Value>> defaults_; // by position in the catalogue, then of the parameter
  std::vector<Undo> undo_;
  std::vector<unsigned> touched_; // change counters that have moved since the last commit
  bool wasEmpty_ = true;
  mutable std::map<std::pair<const Resource *, int>, Lookup> lookups_;
};

} // namespace zelsim

#endif // ZEL_SIM_DATA_STORE_H_
