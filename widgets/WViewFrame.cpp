// SPDX-License-Identifier: MIT
#include "WViewFrame.h"

#include "WNavAccordion.h"

#include <Wt/WContainerWidget>
#include <Wt/WHBoxLayout>
#include <Wt/WVBoxLayout>

namespace
{

// Pixels of the action bar's width
const int barWidth = 160;
const int smallestBar = 148;
const int largestBar = 380;

} // namespace

WViewFrame WViewFrame::build(Wt::WContainerWidget &view)
{
  WViewFrame frame;
  frame.accordion = new WNavAccordion(0);
  frame.accordion->resize(Wt::WLength(barWidth), Wt::WLength::Auto);
  frame.accordion->setMinimumSize(Wt::WLength(smallestBar), Wt::WLength::Auto);
  frame.accordion->setMaximumSize(Wt::WLength(largestBar), Wt::WLength::Auto);
  frame.panels = new Wt::WVBoxLayout();

  Wt::WHBoxLayout *columns = new Wt::WHBoxLayout();
  columns->addWidget(frame.accordion);
  columns->addLayout(frame.panels, 1);
  columns->setResizable(0);
  view.setLayout(columns);
  view.addStyleClass("nevo-view");
  return frame;
}
