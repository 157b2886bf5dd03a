// SPDX-License-Identifier: MIT
#include "ListPanel.h"

#include "ListFilter.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WTitleTools.h"

#include <Wt/WPushButton>

ListPanel::ListPanel(int columnCount)
    : tableView(new WAutoSizeTableView(columnCount)), records(new RecordList(*tableView))
{
  model = records->model;
  proxyModel = records->proxyModel;
}

void ListPanel::addFilter(Wt::WInteractWidget &panel, WTitleTools &title)
{
  Wt::WPushButton *finder = new Wt::WPushButton();
  finder->setStyleClass("nevo-list-finder");
  finder->setToolTip(text("Find rows: type while the list has the keyboard. Escape shows all rows again."));
  finder->setAttributeValue("aria-label", text("Find rows"));
  title.addTool(finder);
  filter = new ListFilter(*records, panel, title);
  title.addTool(filter->mark());
  finder->clicked().connect(filter, &ListFilter::invite);
}

int ListPanel::rowCount()
{
  return records->recordCount();
}

int ListPanel::numSelected()
{
  return records->selectedCount();
}

void ListPanel::removeAllRows()
{
  records->clear();
}
