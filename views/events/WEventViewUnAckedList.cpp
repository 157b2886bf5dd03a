// SPDX-License-Identifier: MIT
#include "WEventViewUnAckedList.h"

#include "Text.h"
#include "WAutoSizeTableView.h"

WEventViewUnAckedList::WEventViewUnAckedList(Wt::WContainerWidget *parent)
    : WEventViewList(text("Unacknowledged Events"), AlertRecord::readUnacknowledged,
                     text("There are no unacknowledged events."), parent)
{
  tableView->setSelectionMode(Wt::ExtendedSelection);
}
