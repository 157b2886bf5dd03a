// SPDX-License-Identifier: MIT
#include "WSesViewList.h"

#include "Convert.h"
#include "Db.h"
#include "SessionDuration.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelValue.h"

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
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  const ZelResponse response(ZelReq_connectionRetrieve(client, 0));
  if (!response)
    return;
  if (json_t *errorList = ZelRspUtil_getObjectParam(response.get(), "errors")) {
    Db::Errors errors;
    // A store without sessions says so in an error, which is none here.
    Db_db.interpZelErrors(errorList, errors, true);
    Db_db.logZelErrors(errors);
    return;
  }
  const int count = ZelRspUtil_numEntries(response.get());
  if (count > 0)
    model->insertRows(0, count);
  for (int row = 0; row < count; ++row)
    fillRow(row, ZelObj_getRow(response.get(), row));
  tableView->setMinimumSize(Wt::WLength(1), Wt::WLength(75));
}

void WSesViewList::fillRow(int row, json_t *connection)
{
  const unsigned int rxIndex = ZelRsp_connectionGetRxIndex(connection);
  const unsigned int txIndex = ZelRsp_connectionGetTxIndex(connection);
  // A name that cannot be read stays empty; the other columns tell which session it is.
  Db::Errors errors;
  std::string username, receiver, transmitter;
  Db_db.getLoggedInUsernameFromRxIndex(rxIndex, username, errors);
  Db_db.getRxNameOrEidFromRxIndex(rxIndex, receiver, errors);
  Db_db.getTxNameOrEidFromTxIndex(txIndex, transmitter, errors);
  const std::string mode =
      Convert_accessModeEnumToString(static_cast<Info_AccessMode>(ZelRsp_connectionGetMode(connection)));
  const std::string duration = SessionDuration_since(ZelRsp_connectionGetSessionStartTime(connection));

  model->setData(row, IndexColumn, boost::any(ZelRsp_connectionGetIndex(connection)), Wt::EditRole);
  model->setData(row, UsernameColumn, boost::any(username), Wt::EditRole);
  model->setData(row, ReceiverColumn, boost::any(receiver), Wt::EditRole);
  model->setData(row, TransmitterColumn, boost::any(transmitter), Wt::EditRole);
  model->setData(row, ModeColumn, boost::any(mode), Wt::EditRole);
  model->setData(row, DurationColumn, boost::any(duration), Wt::EditRole);
}
