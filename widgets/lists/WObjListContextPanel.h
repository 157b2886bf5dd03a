// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_
#define WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_

#include "WContextPanel.h"

#include <string>
#include <vector>

namespace Wt
{
class WStandardItemModel;
}

class WAutoSizeTableView;
class WNumericSortFilterProxyModel;

/// A titled panel that holds a record list.
class WObjListContextPanel : public WContextPanel
{
public:
  /// `columnCount` counts the hidden column of store indexes too.
  WObjListContextPanel(const Wt::WString &title, int columnCount, Wt::WContainerWidget *parent = 0);

  /// Rebuilds the list from the store. A list that cannot be read stays empty.
  virtual void readFromDatabase() = 0;
  virtual int rowCount();
  virtual int numSelected();
  virtual void removeAllRows();

protected:
  /// Inserts columns with these headings (UTF-8) and hides the first one, which holds the store index.
  void setColumns(const std::vector<std::string> &headings);

public:
  WAutoSizeTableView *tableView;
  Wt::WStandardItemModel *model;
  WNumericSortFilterProxyModel *proxyModel;
};

#endif // WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_
