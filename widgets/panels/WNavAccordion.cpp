// SPDX-License-Identifier: MIT
#include "WNavAccordion.h"

#include "WNavAccordionStdCell.h"
#include "WNavAccordionTitleButton.h"

#include <Wt/WTable>
#include <Wt/WTableCell>

WNavAccordion::WNavAccordion(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), table(new Wt::WTable(this))
{
  setLayoutSizeAware(true);
}

void WNavAccordion::sectionAdd(const Wt::WString &title, WNavAccordionStdCell *cell)
{
  const int row = table->rowCount();
  WNavAccordionTitleButton *titleButton = new WNavAccordionTitleButton(title, cell, 0);
  titleButton->setInline(false);
  cell->setInline(false);

  Wt::WTableCell *titleCell = table->elementAt(row, 0);
  titleCell->addWidget(titleButton);
  titleCell->setContentAlignment(Wt::AlignCenter | Wt::AlignMiddle);
  titleCell->setPadding(Wt::WLength(0));
  titleCell->setStyleClass("nevo-nav-accordion-title-button");

  Wt::WTableCell *bodyCell = table->elementAt(row + 1, 0);
  bodyCell->addWidget(cell);
  bodyCell->setContentAlignment(Wt::AlignRight | Wt::AlignMiddle);
  bodyCell->setPadding(Wt::WLength(0));
  bodyCell->setStyleClass("nevo-nav-accordion-cell-body");
}

void WNavAccordion::layoutSizeChanged(int width, int)
{
  setLayoutSizeAware(false);
  setWidth(Wt::WLength(width));
  setLayoutSizeAware(true);
}
