// SPDX-License-Identifier: MIT
#include "WEventViewDetails.h"

#include "Text.h"
#include "WEventViewMsgDetails.h"

#include <Wt/WContainerWidget>
#include <Wt/WTabWidget>
#include <Wt/WVBoxLayout>

namespace
{

const int kTableSpacing = 10; ///< pixels

} // namespace

WEventViewDetails::WEventViewDetails(const Wt::WString &title, int height, Wt::WContainerWidget *parent)
    : WCollapsingContextPanel(title, HeightFixed, height, parent), msgDetails(new WEventViewMsgDetails())
{
  Wt::WVBoxLayout *layout = new Wt::WVBoxLayout();
  layout->setSpacing(kTableSpacing);
  layout->addWidget(msgDetails);
  Wt::WContainerWidget *page = new Wt::WContainerWidget();
  page->setLayout(layout, Wt::AlignLeft | Wt::AlignTop);
  // A long message is scrolled to, also by the keyboard.
  page->setAttributeValue("tabindex", "0");

  Wt::WTabWidget *tabs = new Wt::WTabWidget();
  tabs->setStyleClass("nevo-details-tab");
  tabs->addTab(page, text("Details"));
  setContent(tabs, 1, Wt::AlignJustify);
}

void WEventViewDetails::showNothingSelected(bool nothing)
{
  setAttributeValue("data-empty", nothing ? text("Select an event to see the details.") : Wt::WString());
}
