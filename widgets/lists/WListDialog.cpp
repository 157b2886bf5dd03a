// SPDX-License-Identifier: MIT
#include "WListDialog.h"

#include "ListFilter.h"
#include "RecordList.h"

#include <Wt/WContainerWidget>

void WListDialog::addFilter(RecordList &list, Wt::WContainerWidget &place)
{
  ListFilter *filter = new ListFilter(list, place, place);
  // The dialog hears Escape wherever the keyboard is, and hears it after the list.
  filter->leaveEscape();
  filters.push_back(filter);
}

bool WListDialog::takeFiltersAway()
{
  bool any = false;
  for (ListFilter *filter : filters) {
    any = any || filter->isActive();
    filter->clear();
  }
  return any;
}

void WListDialog::done(DialogCode result)
{
  // A rejection that did not come from rejectAtOnce() comes from Escape.
  if (result == Rejected && takeFiltersAway())
    return;
  Wt::WDialog::done(result);
}

void WListDialog::rejectAtOnce()
{
  takeFiltersAway();
  reject();
}
