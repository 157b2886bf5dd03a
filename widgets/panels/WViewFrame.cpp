// SPDX-License-Identifier: MIT
#include "WViewFrame.h"

#include "WNavAccordion.h"

#include <Wt/WContainerWidget>
#include <Wt/WHBoxLayout>
#include <Wt/WVBoxLayout>

namespace
{

// Pixels of the action bar's width
const int kBarWidth = 160;
const int kSmallestBar = 148;
const int kLargestBar = 380;

} // namespace

WViewFrame WViewFrame::build(Wt::WContainerWidget &view, Wt::WFlags<Wt::AlignmentFlag> alignment)
{
  WViewFrame frame;
  frame.accordion = new WNavAccordion(0);
  frame.accordion->resize(Wt::WLength(kBarWidth), Wt::WLength::Auto);
  frame.accordion->setMinimumSize(Wt::WLength(kSmallestBar), Wt::WLength::Auto);
  frame.accordion->setMaximumSize(Wt::WLength(kLargestBar), Wt::WLength::Auto);
  frame.panels = new Wt::WVBoxLayout();

  Wt::WHBoxLayout *columns = new Wt::WHBoxLayout();
  columns->addWidget(frame.accordion);
  columns->addLayout(frame.panels, 1);
  columns->setResizable(0);
  view.setLayout(columns, alignment);
  view.addStyleClass("nevo-view");
  return frame;
}
