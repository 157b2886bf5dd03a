// SPDX-License-Identifier: MIT
#include "WCollapsingObjListContextPanel.h"

#include "WAutoSizeTableView.h"
#include "WCollapsingContextPanelTitleBar.h"

WCollapsingObjListContextPanel::WCollapsingObjListContextPanel(const Wt::WString &title, HeightType type,
                                                               int height, int columnCount,
                                                               Wt::WContainerWidget *parent)
    : WCollapsingContextPanel(title, type, height, parent), ListPanel(columnCount)
{
  setContent(tableView, 1, Wt::AlignJustify);
  addFilter(*this, titleTools());
}

WCollapsingObjListContextPanel::WCollapsingObjListContextPanel(const Wt::WString &title, HeightType type,
                                                               int height, const std::string &indexHeading,
                                                               const ListColumns &columns,
                                                               Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(title, type, height, static_cast<int>(columns.size()) + 1, parent)
{
  setColumns(indexHeading, columns);
}
