// SPDX-License-Identifier: MIT
#include "WNavAccordionTitleButton.h"

#include "WFoldTitle.h"
#include "WNavAccordionStdCell.h"

#include <Wt/WAnimation>
#include <Wt/WEvent>
#include <Wt/WIconPair>

namespace
{

const int kFadeMilliseconds = 300;

} // namespace

WNavAccordionTitleButton::WNavAccordionTitleButton(const Wt::WString &title, WNavAccordionStdCell *body,
                                                   Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), cell(body)
{
  mark = WFoldTitle::build(title, "nav-accordion-title-button-expanded-idle.png",
                           "nav-accordion-title-button-collapsed-idle.png", this)
             .mark;
  setVerticalAlignment(Wt::AlignMiddle);
  setMargin(Wt::WLength(2));
  mouseWentUp().connect(this, &WNavAccordionTitleButton::titleButtonClicked);
}

void WNavAccordionTitleButton::titleButtonClicked()
{
  const Wt::WAnimation fade(Wt::WAnimation::Fade, Wt::WAnimation::Linear, kFadeMilliseconds);
  if (!cell->isHidden()) {
    mark->setState(1);
    cell->animateHide(fade);
  } else {
    mark->setState(0);
    cell->animateShow(fade);
  }
}
