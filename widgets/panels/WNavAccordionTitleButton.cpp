// SPDX-License-Identifier: MIT
#include "WNavAccordionTitleButton.h"

#include "WFoldTitle.h"
#include "WNavAccordionStdCell.h"

#include <Wt/WAnimation>
#include <Wt/WEvent>

namespace
{

const int kFadeMilliseconds = 300;

} // namespace

WNavAccordionTitleButton::WNavAccordionTitleButton(const Wt::WString &title, WNavAccordionStdCell *body,
                                                   Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), cell(body)
{
  line = new WFoldTitle(title, "nav-accordion-title-button-expanded-idle.png",
                        "nav-accordion-title-button-collapsed-idle.png", this);
  setVerticalAlignment(Wt::AlignMiddle);
  setMargin(Wt::WLength(2));
  mouseWentUp().connect(this, &WNavAccordionTitleButton::titleButtonClicked);
}

void WNavAccordionTitleButton::titleButtonClicked()
{
  const Wt::WAnimation fade(Wt::WAnimation::Fade, Wt::WAnimation::Linear, kFadeMilliseconds);
  if (!cell->isHidden()) {
    line->setState(1);
    cell->animateHide(fade);
  } else {
    line->setState(0);
    cell->animateShow(fade);
  }
}
