// SPDX-License-Identifier: MIT
#include "WSesViewDetails.h"

#include "Text.h"
#include "WSesViewAttribs.h"

#include <Wt/WTabWidget>
#include <Wt/WVBoxLayout>

namespace
{

const int kPanelHeight = 300; ///< pixels

} // namespace

WSesViewDetails::WSesViewDetails(Wt::WContainerWidget *parent)
    : WCollapsingContextPanel(text("Session Details"), HeightFixed, kPanelHeight, parent),
      attribs(new WSesViewAttribs())
{
  Wt::WContainerWidget *page = new Wt::WContainerWidget();
  Wt::WVBoxLayout *layout = new Wt::WVBoxLayout();
  layout->setSpacing(10);
  layout->addWidget(attribs, 0, Wt::AlignLeft | Wt::AlignTop);
  page->setLayout(layout);

  Wt::WTabWidget *tabs = new Wt::WTabWidget();
  tabs->setStyleClass("nevo-details-tab");
  tabs->addTab(page, text("Details"));
  setContent(tabs, 1, 0);
  setEmptyText(text("Select a session to see the details."));
}
