// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_
#define WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_

#include "WCollapsingContextPanel.h"

#include <string>
#include <vector>

namespace Wt
{
class WStandardItemModel;
}

class WAutoSizeTableView;
class WNumericSortFilterProxyModel;

/// A titled panel that folds and holds a record list.
class WCollapsingObjListContextPanel : public WCollapsingContextPanel
{
public:
  /// `height` in pixels; `columnCount` counts the hidden column of store indexes too.
  WCollapsingObjListContextPanel(const Wt::WString &title, HeightType heightType, int height, int columnCount,
                                 Wt::WContainerWidget *parent = 0);

  /// Rebuilds the list from the store. A list that cannot be read stays empty.
  virtual void readFromDatabase() = 0;

protected:
  /// Inserts columns with these headings (UTF-8) and hides the first one, which holds the store index.
  void setColumns(const std::vector<std::string> &headings);

public:
  WAutoSizeTableView *tableView;
  Wt::WStandardItemModel *model;
  WNumericSortFilterProxyModel *proxyModel;
};

#endif // WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_
