// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCOLLAPSING_CONTEXT_PANEL_TITLE_BAR_H_
#define WIDGETS_WCOLLAPSING_CONTEXT_PANEL_TITLE_BAR_H_

#include "WFoldTitle.h"
#include "WTitleTools.h"

#include <Wt/WString>

/// The title line of a panel that folds: shows a mark of the panel's state.
class WCollapsingContextPanelTitleBar : public WTitleTools
{
public:
  explicit WCollapsingContextPanelTitleBar(const Wt::WString &title, Wt::WContainerWidget *parent = 0);

  /// 0: open, 1: folded.
  void stateButtonSet(unsigned int state);

private:
  WFoldTitle *line;
};

#endif // WIDGETS_WCOLLAPSING_CONTEXT_PANEL_TITLE_BAR_H_
