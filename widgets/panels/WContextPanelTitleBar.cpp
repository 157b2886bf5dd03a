// SPDX-License-Identifier: MIT
#include "WContextPanelTitleBar.h"

#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

const int kTitleHeight = 24; ///< pixels

} // namespace

WContextPanelTitleBar::WContextPanelTitleBar(const Wt::WString &title, Wt::WContainerWidget *parent)
    : WTitleTools(parent)
{
  Wt::WTable *table = new Wt::WTable(this);
  Wt::WText *text = new Wt::WText(title, table->elementAt(0, 0));
  text->setAttributeValue("role", "heading");
  text->setAttributeValue("aria-level", "2");
  text->setPadding(Wt::WLength(4), Wt::Left);
  table->elementAt(0, 0)->setContentAlignment(Wt::AlignMiddle);
  table->resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
  resize(Wt::WLength::Auto, Wt::WLength(kTitleHeight));
  setStyleClass("nevo-context-panel-title");
}
