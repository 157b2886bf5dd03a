// SPDX-License-Identifier: MIT
#include "WSesViewList.h"

#include "SessionRows.h"
#include "Text.h"
#include "WAutoSizeTableView.h"

WSesViewList::WSesViewList(Wt::WContainerWidget *parent)
    : WObjListContextPanel(text("Sessions"), "index", SessionRows::columns(), parent)
{
  tableView->setSelectionMode(Wt::ExtendedSelection);
  tableView->setMinimumSize(Wt::WLength(1), Wt::WLength(75));
  tableView->sortByColumn(1, Wt::AscendingOrder);
  records->setEmptyText(text("No receiver is connected to a transmitter."));
}

void WSesViewList::readFromDatabase()
{
  showRecords(SessionRows::of(SessionRecord::readConnections()));
}
