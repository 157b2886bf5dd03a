// SPDX-License-Identifier: MIT
#include "WDashViewEventList.h"

#include "AlertRows.h"
#include "Text.h"
#include "WAutoSizeTableView.h"

#include <Wt/WStandardItemModel>

namespace
{

const int kPanelHeight = 260; ///< pixels

} // namespace

WDashViewEventList::WDashViewEventList(Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(text("Events"), HeightAdaptive, kPanelHeight, AlertRows::ColumnCount,
                                     parent)
{
  setColumns(AlertRows::headings("InstanceID"));
  tableView->setAttributeValue("data-empty", text("There are no unacknowledged events."));
}

void WDashViewEventList::eventLogClear()
{
  if (model->rowCount() > 0)
    model->removeRows(0, model->rowCount());
}

void WDashViewEventList::readFromDatabase()
{
  AlertRows::read(AlertRecord::readUnacknowledged, *model);
}
