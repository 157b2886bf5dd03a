// SPDX-License-Identifier: MIT
#include "WRecordList.h"

#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <string>

WRecordList WRecordList::build(int columnCount, Wt::WObject *owner)
{
  WRecordList list;
  list.model = new Wt::WStandardItemModel(owner);
  list.proxyModel = new WNumericSortFilterProxyModel(owner);
  list.proxyModel->setSourceModel(list.model);
  list.proxyModel->setDynamicSortFilter(true);
  list.proxyModel->setFilterKeyColumn(1);
  list.proxyModel->setFilterRole(Wt::EditRole);
  list.tableView = new WAutoSizeTableView(columnCount);
  list.tableView->setModel(list.proxyModel);
  list.tableView->setSelectionMode(Wt::SingleSelection);
  list.tableView->setSortingEnabled(true);
  list.tableView->setAlternatingRowColors(false);
  return list;
}

void WRecordList::setColumns(const std::vector<std::string> &headings) const
{
  model->insertColumns(0, static_cast<int>(headings.size()));
  for (std::size_t column = 0; column < headings.size(); ++column)
    model->setHeaderData(static_cast<int>(column), Wt::Horizontal, headings[column], Wt::EditRole);
  tableView->setColumnHidden(0, true);
}
