// SPDX-License-Identifier: MIT
#include "WCollapsingContextPanelTitleBar.h"

#include "WFoldTitle.h"

#include <Wt/WEvent>
#include <Wt/WIconPair>
#include <Wt/WTable>

namespace {

const int titleHeight = 24; ///< pixels

} // namespace

WCollapsingContextPanelTitleBar::WCollapsingContextPanelTitleBar(const Wt::WString &title,
                                                                 Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), state(0)
{
  const WFoldTitle line = WFoldTitle::build(title, "context-panel-button-expanded-idle.png",
                                            "context-panel-button-collapsed-idle.png", this);
  mark = line.mark;
  // A click on the mark switches it, also where the panel that it tells of stayed as it was.
  mark->icon1Clicked().connect(this, &WCollapsingContextPanelTitleBar::showState);
  mark->icon2Clicked().connect(this, &WCollapsingContextPanelTitleBar::showState);
  line.table->resize(Wt::WLength::Auto, Wt::WLength(titleHeight));
  resize(Wt::WLength::Auto, Wt::WLength(titleHeight));
}

void WCollapsingContextPanelTitleBar::stateButtonSet(unsigned int newState)
{
  state = newState;
  showState();
}

void WCollapsingContextPanelTitleBar::showState()
{
  mark->setState(static_cast<int>(state));
}
