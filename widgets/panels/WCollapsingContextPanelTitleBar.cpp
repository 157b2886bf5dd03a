// SPDX-License-Identifier: MIT
#include "WCollapsingContextPanelTitleBar.h"

#include "WFoldTitle.h"

#include <Wt/WIconPair>
#include <Wt/WTable>

namespace
{

const int kTitleHeight = 24; ///< pixels

} // namespace

WCollapsingContextPanelTitleBar::WCollapsingContextPanelTitleBar(const Wt::WString &title,
                                                                 Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent)
{
  const WFoldTitle line = WFoldTitle::build(title, "context-panel-button-expanded-idle.png",
                                            "context-panel-button-collapsed-idle.png", this);
  mark = line.mark;
  line.table->resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
  resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
}

void WCollapsingContextPanelTitleBar::stateButtonSet(unsigned int state)
{
  mark->setState(static_cast<int>(state));
}
