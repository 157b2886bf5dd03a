// SPDX-License-Identifier: MIT
#include "WRecordTable.h"

#include "NevoUtil.h"
#include "WNumericSortFilterProxyModel.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>

namespace
{

const int kLineHeight = 28; ///< pixels of a row and of the heading

} // namespace

WRecordTable::WRecordTable(int width, int height, const std::vector<Column> &columns,
                           Wt::WContainerWidget *parent)
    : Wt::WTableView(parent), records(new Wt::WStandardItemModel(this)),
      sorted(new WNumericSortFilterProxyModel(this))
{
  records->insertColumns(0, static_cast<int>(columns.size()) + 1);
  sorted->setSourceModel(records);
  sorted->setDynamicSortFilter(true);
  sorted->setFilterKeyColumn(1);
  sorted->setFilterRole(Wt::EditRole);
  setModel(sorted);
  setSelectionMode(Wt::SingleSelection);
  setSortingEnabled(true);
  setAlternatingRowColors(true);
  setColumnResizeEnabled(false);
  setRowHeight(Wt::WLength(kLineHeight));
  setHeaderHeight(Wt::WLength(kLineHeight));
  resize(Wt::WLength(width), Wt::WLength(height));

  records->setHeaderData(0, Wt::Horizontal, boost::any(std::string("index")), Wt::EditRole);
  setColumnHidden(0, true);
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const int column = static_cast<int>(i) + 1;
    records->setHeaderData(column, Wt::Horizontal, boost::any(columns[i].heading.toUTF8()), Wt::EditRole);
    setColumnWidth(column, Wt::WLength(columns[i].width));
  }
  sortByColumn(1, Wt::AscendingOrder);
}

bool WRecordTable::selectedRecord(unsigned int &zelIndex) const
{
  const Wt::WModelIndexSet selected = selectedIndexes();
  if (selected.size() != 1)
    return false;
  NevoUtil_modelIndexToZelIndex(*selected.begin(), records, sorted, zelIndex);
  return true;
}

void WRecordTable::setEmptyText(const Wt::WString &text)
{
  setAttributeValue("data-empty", text);
}

void WRecordTable::addRecord(unsigned int zelIndex, const std::vector<std::string> &texts)
{
  const int row = records->rowCount();
  records->insertRow(row);
  records->setData(row, 0, boost::any(zelIndex), Wt::EditRole);
  for (std::size_t i = 0; i < texts.size(); ++i)
    records->setData(row, static_cast<int>(i) + 1, boost::any(texts[i]), Wt::EditRole);
}

void WRecordTable::removeAllRecords()
{
  if (records->rowCount() > 0)
    records->removeRows(0, records->rowCount());
}
