// SPDX-License-Identifier: MIT
#include "WCollapsingObjListContextPanel.h"

#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"
#include "WRecordList.h"

#include <Wt/WStandardItemModel>

WCollapsingObjListContextPanel::WCollapsingObjListContextPanel(const Wt::WString &title, HeightType type,
                                                               int height, int columnCount,
                                                               Wt::WContainerWidget *parent)
    : WCollapsingContextPanel(title, type, height, parent)
{
  const WRecordList list = WRecordList::build(columnCount, this);
  tableView = list.tableView;
  model = list.model;
  proxyModel = list.proxyModel;
  setContent(tableView, 1, Wt::AlignJustify);
}

void WCollapsingObjListContextPanel::setColumns(const std::vector<std::string> &headings)
{
  WRecordList{model, proxyModel, tableView}.setColumns(headings);
}
