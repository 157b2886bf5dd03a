// SPDX-License-Identifier: MIT
#include "WEventViewList.h"

#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>

WEventViewList::WEventViewList(const Wt::WString &title, AlertRows::Retrieve retrieveCall,
                               const Wt::WString &emptyText, Wt::WContainerWidget *parent)
    : WObjListContextPanel(title, "instance ID", AlertRows::columns(), parent), retrieve(retrieveCall)
{
  records->setEmptyText(emptyText);
}

void WEventViewList::readFromDatabase()
{
  showRecords(AlertRows::read(retrieve));
}

bool WEventViewList::getCurrentlySelectedRecord(unsigned int &index, std::string &date, std::string &type,
                                                std::string &eid, std::string &message)
{
  for (std::string *text : {&date, &type, &eid, &message})
    text->clear();
  const Wt::WModelIndexSet selected = tableView->selectedIndexes();
  if (selected.size() != 1)
    return true;
  const int row = proxyModel->mapToSource(*selected.begin()).row();
  const auto cell = [this, row](int column) { return model->data(row, column, Wt::EditRole); };
  try {
    index = boost::any_cast<unsigned int>(cell(AlertRows::InstanceColumn));
    date = boost::any_cast<std::string>(cell(AlertRows::DateColumn));
    type = boost::any_cast<std::string>(cell(AlertRows::TypeColumn));
    eid = boost::any_cast<std::string>(cell(AlertRows::OriginatorColumn));
    message = boost::any_cast<std::string>(cell(AlertRows::MessageColumn));
  } catch (const boost::bad_any_cast &) {
    message = text("unknown value").toUTF8();
    return true;
  }
  return false;
}
