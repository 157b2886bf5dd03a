// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_
#define WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_

#include "ListPanel.h"
#include "WCollapsingContextPanel.h"

/// A titled panel that folds and holds a record list.
class WCollapsingObjListContextPanel : public WCollapsingContextPanel, public ListPanel
{
public:
  /// `height` in pixels; `columnCount` counts the hidden column of store indexes too.
  WCollapsingObjListContextPanel(const Wt::WString &title, HeightType heightType, int height, int columnCount,
                                 Wt::WContainerWidget *parent = 0);

  /// With columns that are made at once; `indexHeading` is that of the hidden one.
  WCollapsingObjListContextPanel(const Wt::WString &title, HeightType heightType, int height,
                                 const std::string &indexHeading, const ListColumns &columns,
                                 Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WCOLLAPSING_OBJ_LIST_CONTEXT_PANEL_H_
