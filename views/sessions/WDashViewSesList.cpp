// SPDX-License-Identifier: MIT
#include "WDashViewSesList.h"

#include "SessionRows.h"
#include "Text.h"
#include "WAutoSizeTableView.h"

namespace
{

const int kPanelHeight = 260; ///< pixels

} // namespace

WDashViewSesList::WDashViewSesList(Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(text("User Sessions"), HeightAdaptive, kPanelHeight, "index",
                                     SessionRows::columns(), parent)
{
  tableView->sortByColumn(1, Wt::AscendingOrder);
  records->setEmptyText(text("Nobody is logged in at a receiver."));
}

void WDashViewSesList::readFromDatabase()
{
  showRecords(SessionRows::of(SessionRecord::readLogins()));
}
