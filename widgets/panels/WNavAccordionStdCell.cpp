// SPDX-License-Identifier: MIT
#include "WNavAccordionStdCell.h"

#include <Wt/WLink>
#include <Wt/WTableCell>
#include <Wt/WText>

WNavAccordionStdCell::WNavAccordionStdCell(const Wt::WString &buttonText, const Wt::WString &description,
                                           Wt::WContainerWidget *parent)
    : Wt::WTable(parent), button(new Wt::WPushButton(buttonText, elementAt(0, 0)))
{
  button->setInline(false);
  button->setStyleClass("nevo-nav-accordion-action-button");
  button->setVerticalAlignment(Wt::AlignMiddle);
  Wt::WText *text = new Wt::WText(description, elementAt(1, 0));
  text->setInline(false);
  for (int row = 0; row < 2; ++row) {
    elementAt(row, 0)->setContentAlignment(Wt::AlignRight | Wt::AlignTop);
    elementAt(row, 0)->setPadding(Wt::WLength(5));
  }
}

void WNavAccordionStdCell::enableActionButton()
{
  button->enable();
}

void WNavAccordionStdCell::disableActionButton()
{
  button->disable();
}

void WNavAccordionStdCell::linkSet(Wt::WLink &link)
{
  button->setLink(link);
}
