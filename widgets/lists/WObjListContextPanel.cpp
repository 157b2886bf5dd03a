// SPDX-License-Identifier: MIT
#include "WObjListContextPanel.h"

#include "WAutoSizeTableView.h"
#include "WContextPanelTitleBar.h"

WObjListContextPanel::WObjListContextPanel(const Wt::WString &title, int columnCount,
                                           Wt::WContainerWidget *parent)
    : WContextPanel(title, parent), ListPanel(columnCount)
{
  setContent(tableView, 1, Wt::AlignJustify);
  addFilter(*this, titleTools());
}

WObjListContextPanel::WObjListContextPanel(const Wt::WString &title, const std::string &indexHeading,
                                           const ListColumns &columns, Wt::WContainerWidget *parent)
    : WObjListContextPanel(title, static_cast<int>(columns.size()) + 1, parent)
{
  setColumns(indexHeading, columns);
}
