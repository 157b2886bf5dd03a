// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WRECORD_TABLE_H_
#define WIDGETS_WRECORD_TABLE_H_

#include <Wt/WString>
#include <Wt/WTableView>
#include <string>
#include <vector>

namespace Wt
{
class WStandardItemModel;
}

class WNumericSortFilterProxyModel;

/// A list of fixed size from which one record is chosen, as in a dialog. Column 0, which is hidden, holds the
/// store index; the list is sorted by column 1.
class WRecordTable : public Wt::WTableView
{
public:
  struct Column {
    Wt::WString heading;
    int width; ///< pixels
  };

  /// Sizes in pixels; `columns` without the one of store indexes.
  WRecordTable(int width, int height, const std::vector<Column> &columns, Wt::WContainerWidget *parent = 0);

  /// The one selected record. False if there is none.
  bool selectedRecord(unsigned int &zelIndex) const;

  /// What stands in the middle while there are no rows.
  void setEmptyText(const Wt::WString &text);

protected:
  /// Adds a record: its store index, and the texts of the other columns in UTF-8.
  void addRecord(unsigned int zelIndex, const std::vector<std::string> &texts);
  void removeAllRecords();

private:
  Wt::WStandardItemModel *records;
  WNumericSortFilterProxyModel *sorted;
};

#endif // WIDGETS_WRECORD_TABLE_H_
