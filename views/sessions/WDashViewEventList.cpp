// SPDX-License-Identifier: MIT
#include "WDashViewEventList.h"

#include "AlertRows.h"
#include "Text.h"

namespace
{

const int kPanelHeight = 260; ///< pixels

} // namespace

WDashViewEventList::WDashViewEventList(Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(text("Events"), HeightAdaptive, kPanelHeight, "InstanceID",
                                     AlertRows::columns(), parent)
{
  records->setSelectionStays(RecordList::AtItsRow);
  records->setEmptyText(text("There are no unacknowledged events."));
}

void WDashViewEventList::eventLogClear()
{
  removeAllRows();
}

void WDashViewEventList::readFromDatabase()
{
  showRecords(AlertRows::read(AlertRecord::readUnacknowledged));
}
