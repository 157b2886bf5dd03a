// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_
#define WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_

#include "ListPanel.h"
#include "WContextPanel.h"

/// A titled panel that holds a record list.
class WObjListContextPanel : public WContextPanel, public ListPanel
{
public:
  /// `columnCount` counts the hidden column of store indexes too.
  WObjListContextPanel(const Wt::WString &title, int columnCount, Wt::WContainerWidget *parent = 0);

  /// With columns that are made at once; `indexHeading` is that of the hidden one.
  WObjListContextPanel(const Wt::WString &title, const std::string &indexHeading, const ListColumns &columns,
                       Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WOBJ_LIST_CONTEXT_PANEL_H_
