// SPDX-License-Identifier: MIT
#include "WSesViewList.h"

#include "SessionRecord.h"
#include "Text.h"
#include "WAutoSizeTableView.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>

namespace
{

enum Column {
  IndexColumn,
  UsernameColumn,
  ReceiverColumn,
  TransmitterColumn,
  ModeColumn,
  DurationColumn,
  ColumnCount
};

} // namespace

WSesViewList::WSesViewList(Wt::WContainerWidget *parent)
    : WObjListContextPanel(text("Sessions"), ColumnCount, parent)
{
  setColumns({"index", text("Username").toUTF8(), text("Receiver").toUTF8(), text("Transmitter").toUTF8(),
              text("Mode").toUTF8(), text("Duration").toUTF8()});
  tableView->setSelectionMode(Wt::ExtendedSelection);
  tableView->setAttributeValue("data-empty", text("No receiver is connected to a transmitter."));
  tableView->setColumnAlignment(DurationColumn, Wt::AlignRight);
  tableView->setHeaderAlignment(DurationColumn, Wt::AlignRight);
  tableView->sortByColumn(UsernameColumn, Wt::AscendingOrder);
}

void WSesViewList::readFromDatabase()
{
  removeAllRows();
  const auto sessions = SessionRecord::readConnections();
  if (!sessions)
    return;
  const int count = static_cast<int>(sessions->size());
  if (count > 0)
    model->insertRows(0, count);
  for (int row = 0; row < count; ++row)
    fillRow(row, (*sessions)[static_cast<std::size_t>(row)]);
  tableView->setMinimumSize(Wt::WLength(1), Wt::WLength(75));
}

void WSesViewList::fillRow(int row, const SessionRecord &session)
{
  model->setData(row, IndexColumn, boost::any(session.index), Wt::EditRole);
  model->setData(row, UsernameColumn, boost::any(session.user), Wt::EditRole);
  model->setData(row, ReceiverColumn, boost::any(session.receiver), Wt::EditRole);
  model->setData(row, TransmitterColumn, boost::any(session.transmitter), Wt::EditRole);
  model->setData(row, ModeColumn, boost::any(session.mode), Wt::EditRole);
  model->setData(row, DurationColumn, boost::any(session.durationText()), Wt::EditRole);
}
