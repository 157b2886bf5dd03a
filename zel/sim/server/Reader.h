// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_SERVER_READER_H_
#define ZEL_SIM_SERVER_READER_H_

#include "life/World.h"
#include "server/Request.h"

#include <cstdint>
#include <string>
#include <vector>

namespace zelsim
{

/// Answers GET requests straight from the records into text.
///
/// One record that is asked for by its index (or that a resource has only one of) answers with the
/// selected parameters at top level; everything else with a list of rows. Nothing found is "No entries".
/// An answer names the epoch of its resource, by which a client sees from the page of epochs how long it
/// stays right. A longer one gets a tag as well, made of the run of this store and the revision of the
/// resource; whoever asks the same again with that tag is told "unchanged" while the revision stands.
class Reader
{
public:
  explicit Reader(const World &world);

  /// Appends an answer's JSON to `out`, or returns the problem and leaves `out` as it was.
  Problem answer(const Request &request, std::string &out) const;

  /// A number that no other run of a store has; never 0.
  std::uint64_t run() const { return run_; }

private:
  struct Column {
    int position; // of the parameter; -1 is "index"
    const Rules::Reader *computed;
    bool hasSecrets;
  };
  using Columns = std::vector<Column>;

  Problem chooseColumns(const Request &request, Columns &columns) const;
  Problem chooseRows(const Request &request, std::vector<unsigned> &rows, bool &single) const;
  void appendRow(std::string &out, const Request &request, const Columns &columns, unsigned index) const;
  void appendNested(std::string &out, const Request &request, unsigned index) const;
  Problem checkNestedSelect(const Request &request) const;
  std::string tagOf(const Resource &resource) const;

  const World &world_;
  std::uint64_t run_;
};

} // namespace zelsim

#endif // ZEL_SIM_SERVER_READER_H_
