// SPDX-License-Identifier: MIT
#ifndef STORE_RECORD_INDEX_H_
#define STORE_RECORD_INDEX_H_

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>
#include <vector>

/// The records of one resource, read when the first of them is looked for and not again.
template <class Record> class RecordsOnce
{
public:
  using Read = std::optional<std::vector<Record>> (*)();

  explicit RecordsOnce(Read readRecords) : read(readRecords) {}

  /// Empty as well if they cannot be read.
  const std::vector<Record> &all()
  {
    if (read)
      records = std::exchange(read, nullptr)().value_or(std::vector<Record>());
    return records;
  }

private:
  Read read;
  std::vector<Record> records;
};

/// Finds the first record of each value of a key.
template <class Record> class RecordIndex
{
public:
  explicit RecordIndex(unsigned int Record::*keyMember) : key(keyMember) {}

  /// Null if there is none. `records` are the same at each call.
  const Record *find(const std::vector<Record> &records, unsigned int value)
  {
    if (places.empty())
      for (std::size_t place = 0; place < records.size(); ++place)
        places.emplace(records[place].*key, place);
    const auto found = places.find(value);
    return found == places.end() ? nullptr : &records[found->second];
  }

private:
  unsigned int Record::*key;
  std::unordered_map<unsigned int, std::size_t> places;
};

#endif // STORE_RECORD_INDEX_H_
