// SPDX-License-Identifier: MIT
#ifndef WIDGETS_SELECTION_COMMAND_H_
#define WIDGETS_SELECTION_COMMAND_H_

#include "Db.h"
#include "WConfirmation.h"

#include <Wt/WString>
#include <optional>

/// A command over the selected records: its question, then its deed for each of them, then what failed.
struct SelectionCommand {
  /// How failures are told.
  enum FailureReport {
    NotTold,
    EachInItsBox, ///< before the next record's turn
    InOneBox      ///< when all have had their turn
  };
  struct Outcome {
    unsigned int done = 0;
    unsigned int failed = 0;
  };

  std::optional<WConfirmation> question; ///< none: the command is never asked about
  FailureReport report = NotTold;
  Wt::WString failure; ///< stands before the store's own messages

  /// Asks, if there is a question that the user wants. The selection may be another one afterwards.
  bool isWanted() const { return !question || question->ask(); }

  /// Does `deed(record, errors)` for each record in order. It returns whether it has succeeded; one failure
  /// does not keep the others from their turn.
  template <class Records, class Deed> Outcome run(const Records &records, Deed deed) const
  {
    Outcome outcome;
    Db::Errors all;
    for (const auto &record : records) {
      Db::Errors errors;
      if (deed(record, errors)) {
        ++outcome.done;
        continue;
      }
      ++outcome.failed;
      if (report == EachInItsBox)
        tell(errors);
      all.insert(all.end(), errors.begin(), errors.end());
    }
    if (report == InOneBox && outcome.failed > 0)
      tell(all);
    return outcome;
  }

private:
  void tell(const Db::Errors &errors) const;
};

#endif // WIDGETS_SELECTION_COMMAND_H_
