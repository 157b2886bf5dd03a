// SPDX-License-Identifier: MIT
#include "WRecordTable.h"

WRecordTable::WRecordTable(int width, int height, const ListColumns &columns, Wt::WContainerWidget *parent)
    : Wt::WTableView(parent), records(new RecordList(*this))
{
  setAlternatingRowColors(true);
  setColumnResizeEnabled(false);
  resize(Wt::WLength(width), Wt::WLength(height));
  records->setColumns("index", columns);
  sortByColumn(1, Wt::AscendingOrder);
}

bool WRecordTable::selectedRecord(unsigned int &zelIndex) const
{
  const std::vector<unsigned int> selected = records->selectedIndexes();
  if (selected.size() != 1)
    return false;
  zelIndex = selected.front();
  return true;
}
