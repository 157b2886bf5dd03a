// SPDX-License-Identifier: MIT
#ifndef WIDGETS_LIST_PANEL_H_
#define WIDGETS_LIST_PANEL_H_

#include "ListColumn.h"
#include "ListRow.h"
#include "RecordList.h"

#include <Wt/WSignal>
#include <optional>
#include <string>
#include <vector>

namespace Wt
{
class WInteractWidget;
}

class ListFilter;
class WAutoSizeTableView;
class WTitleTools;

/// What the panels that hold a record list have in common, beside the panel itself: a list that fits its
/// columns to its width, and the filter that typing in it sets.
class ListPanel
{
public:
  virtual ~ListPanel() = default;

  /// Reads the list from the store and shows it. A list that cannot be read is left empty.
  virtual void readFromDatabase() = 0;

  /// All records, those too that the filter hides.
  virtual int rowCount();
  virtual int numSelected();
  virtual void removeAllRows();

  /// The store indexes of the selected records, in the order of their rows.
  std::vector<unsigned int> selectedIndexes() const { return records->selectedIndexes(); }

  /// Selects nothing without telling anybody.
  void clearSelection() { records->clearSelection(); }

  /// The user, or a filter that hides a selected row, has changed the selection. Reading never tells.
  Wt::Signal<> &selectionChanged() { return records->selectionChanged(); }

  WAutoSizeTableView *tableView;
  Wt::WStandardItemModel *model;
  WNumericSortFilterProxyModel *proxyModel;

protected:
  /// `columnCount` counts the hidden column of store indexes too. The view has no parent yet: the panel takes
  /// it in as its content, and then calls addFilter().
  explicit ListPanel(int columnCount);

  /// Hears the keys in the panel, and puts the filter's mark and a button for it into the panel's title.
  void addFilter(Wt::WInteractWidget &panel, WTitleTools &title);

  /// Makes the columns; `indexHeading` is that of the hidden first one.
  void setColumns(const std::string &indexHeading, const ListColumns &columns)
  {
    records->setColumns(indexHeading, columns);
  }

  /// Shows these records; none at all if they could not be read.
  void showRecords(const std::optional<ListRows> &rows) { records->show(rows); }

  RecordList *records; ///< owned by the view

private:
  ListFilter *filter = nullptr;
};

#endif // WIDGETS_LIST_PANEL_H_
