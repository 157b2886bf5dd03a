// SPDX-License-Identifier: MIT
#include "WDashView.h"

#include "WDashViewEventList.h"
#include "WDashViewSesList.h"

#include <Wt/WGridLayout>

namespace
{

void setUpList(Wt::WContainerWidget &list)
{
  list.setInline(false);
  list.setMinimumSize(Wt::WLength(0), Wt::WLength(24));
  list.setOverflow(Wt::WContainerWidget::OverflowAuto, Wt::Horizontal | Wt::Vertical);
}

} // namespace

WDashView::WDashView(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), layout(new Wt::WGridLayout()), sessionList(new WDashViewSesList()),
      eventList(new WDashViewEventList()), spacer(new Wt::WContainerWidget())
{
  setUpList(*sessionList);
  setUpList(*eventList);
  spacer->setInline(false);
  spacer->resize(Wt::WLength::Auto, Wt::WLength(200));
  spacer->setMinimumSize(Wt::WLength(0), Wt::WLength(400));

  layout->addWidget(sessionList, 0, 0);
  layout->addWidget(eventList, 1, 0);
  layout->addWidget(spacer, 2, 0);
  layout->setRowResizable(0);
  layout->setRowResizable(1);
  setLayout(layout);
}

void WDashView::eventLogClear()
{
  if (eventList)
    eventList->eventLogClear();
}

void WDashView::readAnew()
{
  readFromDatabase();
}

void WDashView::readFromDatabase()
{
  sessionList->readFromDatabase();
  eventList->readFromDatabase();
}
