// SPDX-License-Identifier: MIT
#include "WSettingsTabBase.h"

#include "NevoSession.h"
#include "NevoUtil.h"
#include "WAutoSizeTableView.h"

#include <Wt/WMenuItem>

WSettingsTabBase::WSettingsTabBase(ChangeTracker::SubsectionId id, Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), detailsMenuItem(0), subsectionId(id), tableView(0), holdsChanges(false)
{
}

void WSettingsTabBase::registerDetailsMenuItem(Wt::WMenuItem *menuItem)
{
  detailsMenuItem = menuItem;
}

void WSettingsTabBase::registerTableView(WAutoSizeTableView *view)
{
  tableView = view;
}

bool WSettingsTabBase::hasChanged() const
{
  return holdsChanges;
}

void WSettingsTabBase::indicateChangedContent(bool changed)
{
  holdsChanges = changed;
  NevoSession *session = NevoSession::current();
  if (!session)
    return;
  session->subsectionChanged(subsectionId, changed);
  NevoUtil_indicateChange(detailsMenuItem, changed);
  if (!tableView)
    return;
  // Unsaved edits refer to the selected records, so the selection stays as long as there are any.
  if (changed)
    enableTableView(false);
  else if (!session->parentSectionChanged(subsectionId))
    enableTableView(true);
}

void WSettingsTabBase::changed(Wt::WMenuItem *item, bool changed)
{
  NevoUtil_indicateChange(item, changed);
}

void WSettingsTabBase::enableTableView(bool enabled)
{
  tableView->setDisabled(!enabled);
  if (enabled)
    tableView->removeStyleClass("nevo-wtableview-disabled");
  else
    tableView->addStyleClass("nevo-wtableview-disabled");
}
