// SPDX-License-Identifier: MIT
#include "WCollapsingContextPanelTitleBar.h"

#include <Wt/WTable>

namespace
{

const int kTitleHeight = 24; ///< pixels

} // namespace

WCollapsingContextPanelTitleBar::WCollapsingContextPanelTitleBar(const Wt::WString &title,
                                                                 Wt::WContainerWidget *parent)
    : WTitleTools(parent)
{
  line = new WFoldTitle(title, "context-panel-button-expanded-idle.png",
                        "context-panel-button-collapsed-idle.png", this);
  line->table()->resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
  resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
}

void WCollapsingContextPanelTitleBar::stateButtonSet(unsigned int state)
{
  line->setState(static_cast<int>(state));
}
