// SPDX-License-Identifier: MIT
#include "WEventViewHistList.h"

#include "Text.h"
#include "WAutoSizeTableView.h"

WEventViewHistList::WEventViewHistList(Wt::WContainerWidget *parent)
    : WEventViewList(text("Event History"), AlertRecord::readHistory, text("The event history is empty."),
                     parent)
{
  tableView->setSelectionMode(Wt::SingleSelection);
}
