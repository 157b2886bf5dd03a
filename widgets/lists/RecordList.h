// SPDX-License-Identifier: MIT
#ifndef WIDGETS_RECORD_LIST_H_
#define WIDGETS_RECORD_LIST_H_

#include "ListColumn.h"
#include "ListRow.h"

#include <Wt/WModelIndex>
#include <Wt/WObject>
#include <Wt/WSignal>
#include <Wt/WString>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{
class WStandardItemModel;
class WTableView;
} // namespace Wt

class WNumericSortFilterProxyModel;

/**
 * A list of records in a table view: the model of one row for each record, the sort and filter layer over it,
 * the columns, the selection, and what stands in the middle while there is nothing to show.
 *
 * show() takes all rows and changes the model only where it differs from them, so that a list which shows the
 * same again costs nothing. It keeps the selection, and it is silent: selectionChanged() tells only what the
 * user or the filter selects. A row that the filter hides is not selected.
 *
 * It belongs to its view, and the two models as well.
 */
class RecordList : public Wt::WObject
{
public:
  enum SelectionStays {
    WithItsRecord, ///< wherever the record's row goes; a record that has gone leaves the selection
    AtItsRow       ///< the selection takes whatever record comes to the row
  };

  explicit RecordList(Wt::WTableView &view);

  /// Makes the columns, once. `indexHeading` is that of the hidden first one.
  void setColumns(const std::string &indexHeading, const ListColumns &columns);

  /// In a list of several kinds of records, each with indexes of its own, this column's text tells the kind.
  void setKindColumn(int column) { kindColumn = column; }
  void setSelectionStays(SelectionStays where) { selectionStays = where; }

  /// What an empty list says after it has been read. One that could not be read says nothing.
  void setEmptyText(const Wt::WString &text);

  /// What it says before it is read for the first time, and after clear(); nothing if that is not set.
  void setClearedText(const Wt::WString &text);

  /// Shows these records, in this order where nothing sorts them; none at all if they could not be read.
  void show(const std::optional<ListRows> &rows);

  /// Takes all rows away.
  void clear();

  /// The store indexes of the selected records, in the order of their rows.
  std::vector<unsigned int> selectedIndexes() const;
  int selectedCount() const;

  /// Selects nothing; silent.
  void clearSelection();

  /// The user, or a filter that hides a selected row, has changed the selection.
  Wt::Signal<> &selectionChanged() { return changed; }

  /// Shows only the rows in which each of these words occurs; all rows for an empty text.
  void setFilter(const std::string &words);
  const std::string &filter() const;
  int shownCount() const;
  int recordCount() const;

  /// What is shown, or the filter, may have changed.
  Wt::Signal<> &contentsChanged() { return contents; }

  Wt::WTableView &view;
  Wt::WStandardItemModel *model;
  WNumericSortFilterProxyModel *proxyModel;

private:
  /// A record's index and its kind.
  using Key = std::pair<unsigned int, std::string>;
  /// What was selected: records, or rows of the view.
  struct Selection {
    std::set<Key> records;
    std::set<int> rows;
  };
  enum State { Cleared, Read, Unread };

  class Silence;

  std::optional<Key> keyAt(int sourceRow) const;
  Key keyOf(const ListRow &row) const;
  Selection selection() const;
  void select(const Selection &wanted, SelectionStays where);
  void replaceRows(const ListRows &rows);
  std::set<Key> removeAllBut(const std::set<Key> &wanted);
  void insertRow(int at, const ListRow &row);
  void updateRow(int at, const ListRow &row);
  void viewSelectionChanged();
  void tellContents();

  Wt::Signal<> changed;
  Wt::Signal<> contents;
  Wt::WString emptyText;
  Wt::WString clearedText;
  State state = Cleared;
  SelectionStays selectionStays = WithItsRecord;
  int kindColumn = 0; ///< 0: the records are all of one kind
  bool silent = false;
};

#endif // WIDGETS_RECORD_LIST_H_
