// SPDX-License-Identifier: MIT
#include "WDashViewSesList.h"

#include "SessionRecord.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"

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

const int kPanelHeight = 260; ///< pixels

} // namespace

WDashViewSesList::WDashViewSesList(Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(text("User Sessions"), HeightAdaptive, kPanelHeight, ColumnCount, parent)
{
  setColumns({"index", text("Username").toUTF8(), text("Receiver").toUTF8(), text("Transmitter").toUTF8(),
              text("Mode").toUTF8(), text("Duration").toUTF8()});
  tableView->setAttributeValue("data-empty", text("Nobody is logged in at a receiver."));
  tableView->setColumnAlignment(DurationColumn, Wt::AlignRight);
  tableView->setHeaderAlignment(DurationColumn, Wt::AlignRight);
  proxyModel->sort(UsernameColumn, Wt::AscendingOrder);
}

void WDashViewSesList::readFromDatabase()
{
  if (model->rowCount() > 0)
    model->removeRows(0, model->rowCount());
  const auto sessions = SessionRecord::readLogins();
  if (!sessions)
    return;
  const int count = static_cast<int>(sessions->size());
  if (count > 0)
    model->insertRows(0, count);
  for (int row = 0; row < count; ++row)
    fillRow(row, (*sessions)[static_cast<std::size_t>(row)]);
}

void WDashViewSesList::fillRow(int row, const SessionRecord &session)
{
  model->setData(row, IndexColumn, boost::any(session.index), Wt::EditRole);
  model->setData(row, UsernameColumn, boost::any(session.user), Wt::EditRole);
  model->setData(row, ReceiverColumn, boost::any(session.receiver), Wt::EditRole);
  model->setData(row, TransmitterColumn, boost::any(session.transmitter), Wt::EditRole);
  model->setData(row, ModeColumn, boost::any(session.mode), Wt::EditRole);
  model->setData(row, DurationColumn, boost::any(session.durationText()), Wt::EditRole);
}
