// SPDX-License-Identifier: MIT
#include "WDashView.h"

#include "NevoUtil.h"
#include "WAutoSizeTableView.h"
#include "WDashViewEventList.h"
#include "WDashViewSesList.h"
#include "WNumericSortFilterProxyModel.h"

#include <Wt/WGridLayout>
#include <Wt/WStandardItemModel>
#include <vector>

namespace
{

void setUpList(Wt::WContainerWidget &list)
{
  list.setInline(false);
  list.setMinimumSize(Wt::WLength(0), Wt::WLength(24));
  list.setOverflow(Wt::WContainerWidget::OverflowAuto, Wt::Horizontal | Wt::Vertical);
}

/// The rows of a selection, which outlive the model's rebuild as its indexes do not.
std::vector<int> rowsOf(const Wt::WModelIndexSet &indexes)
{
  std::vector<int> rows;
  for (const Wt::WModelIndex &index : indexes)
    rows.push_back(index.row());
  return rows;
}

Wt::WModelIndexSet indexesOf(const std::vector<int> &rows, const Wt::WAbstractItemModel &model)
{
  Wt::WModelIndexSet indexes;
  for (const int row : rows)
    if (row < model.rowCount())
      indexes.insert(model.index(row, 0));
  return indexes;
}

} // namespace

WDashView::WDashView(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), layout(new Wt::WGridLayout()), sessionList(new WDashViewSesList()),
      eventList(new WDashViewEventList()), spacer(new Wt::WContainerWidget())
{
  setUpList(*sessionList);
  setUpList(*eventList);
  spacer->setInline(false);
  spacer->resize(Wt::WLength::Auto, Wt::WLength(200));
  spacer->setMinimumSize(Wt::WLength(0), Wt::WLength(400));

  layout->addWidget(sessionList, 0, 0);
  layout->addWidget(eventList, 1, 0);
  layout->addWidget(spacer, 2, 0);
  layout->setRowResizable(0);
  layout->setRowResizable(1);
  setLayout(layout);
}

void WDashView::eventLogClear()
{
  if (eventList)
    eventList->eventLogClear();
}

void WDashView::readAnew()
{
  readFromDatabase();
}

void WDashView::readFromDatabase()
{
  Wt::WModelIndexSet selected = sessionList->tableView->selectedIndexes();
  std::vector<unsigned int> sessionIndexes;
  NevoUtil_modelIndexSetToZelIndexVect(selected, sessionList->model, sessionList->proxyModel, sessionIndexes);
  sessionList->readFromDatabase();
  sessionList->tableView->setSelectedZelIndexes(sessionIndexes);

  const std::vector<int> eventRows = rowsOf(eventList->tableView->selectedIndexes());
  eventList->readFromDatabase();
  eventList->tableView->setSelectedIndexes(indexesOf(eventRows, *eventList->proxyModel));
}
