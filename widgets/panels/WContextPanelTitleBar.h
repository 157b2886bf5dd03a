// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCONTEXT_PANEL_TITLE_BAR_H_
#define WIDGETS_WCONTEXT_PANEL_TITLE_BAR_H_

#include "WTitleTools.h"

#include <Wt/WString>

/// The title line of a panel that cannot be folded.
class WContextPanelTitleBar : public WTitleTools
{
public:
  explicit WContextPanelTitleBar(const Wt::WString &title, Wt::WContainerWidget *parent = 0);
};

#endif // WIDGETS_WCONTEXT_PANEL_TITLE_BAR_H_
