// SPDX-License-Identifier: MIT
#ifndef STORE_RECORD_ROWS_H_
#define STORE_RECORD_ROWS_H_

#include "ZelValue.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

/// The rows of a response, from which the records of lists are made. Only this folder sees it.
///
/// A store that has no record of a resource says so with an error ("no entries"), which is an empty list
/// here. Any other error is logged.
class RecordRows
{
public:
  /// Takes over the response; null means that there was none.
  explicit RecordRows(json_t *response);
  /// The rows of the list `list` within the record of a response, which is taken over.
  static RecordRows nested(json_t *response, const char *key, const char *list);

  /// False if the store gave no answer, or one that tells of a failure.
  bool wereRead() const { return read; }

  /// A value of a row, from 0: 0 or an empty text where the row has none of that type.
  unsigned int number(unsigned int row, const char *parameter) const;
  std::string text(unsigned int row, const char *parameter) const;
  /// None where the row has no such text.
  std::optional<std::string> textIfAny(unsigned int row, const char *parameter) const;
  /// Copies at most `size` bytes and zeroes what is left of the buffer.
  void bytes(unsigned int row, const char *parameter, char *buffer, std::size_t size) const;
  /// The row itself, which this object owns.
  json_t *row(unsigned int row) const;

  /// One record for each row, in the store's order; none at all if the rows could not be read.
  template <class Record>
  std::optional<std::vector<Record>> records(Record (*recordOf)(const RecordRows &, unsigned int row)) const
  {
    if (!read)
      return std::nullopt;
    std::vector<Record> all;
    all.reserve(rows);
    for (unsigned int row = 0; row < rows; ++row)
      all.push_back(recordOf(*this, row));
    return all;
  }

private:
  json_t *values() const { return list ? list.get() : response.get(); }
  void countRows();

  ZelResponse response;
  ZelObject list; // the rows, where they are not the response itself
  bool read;
  unsigned int rows;
};

#endif // STORE_RECORD_ROWS_H_
