// SPDX-License-Identifier: MIT
#include "WObjListContextPanel.h"

#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"
#include "WRecordList.h"

#include <Wt/WStandardItemModel>

WObjListContextPanel::WObjListContextPanel(const Wt::WString &title, int columnCount,
                                           Wt::WContainerWidget *parent)
    : WContextPanel(title, parent)
{
  const WRecordList list = WRecordList::build(columnCount, this);
  tableView = list.tableView;
  model = list.model;
  proxyModel = list.proxyModel;
  setContent(tableView, 1, Wt::AlignJustify);
}

int WObjListContextPanel::rowCount()
{
  return model->rowCount();
}

int WObjListContextPanel::numSelected()
{
  return static_cast<int>(tableView->selectedIndexes().size());
}

void WObjListContextPanel::removeAllRows()
{
  if (model->rowCount() > 0)
    model->removeRows(0, model->rowCount());
}

void WObjListContextPanel::setColumns(const std::vector<std::string> &headings)
{
  WRecordList{model, proxyModel, tableView}.setColumns(headings);
}
