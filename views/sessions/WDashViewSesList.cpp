// SPDX-License-Identifier: MIT
#include "WDashViewSesList.h"

#include "Convert.h"
#include "Db.h"
#include "SessionDuration.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WNumericSortFilterProxyModel.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelValue.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>
#include <vector>

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

/// What a receiver's KVM connection adds to its user session.
struct Connection {
  std::string mode;
  unsigned int start; ///< seconds since 1970
};

/// The receiver's first connection in a response, which may be null. Without one: no mode, and the given
/// start.
Connection connectionOf(json_t *connections, unsigned int rxIndex, unsigned int sessionStart)
{
  const int count = connections ? ZelRspUtil_numEntries(connections) : 0;
  for (int row = 0; row < count; ++row) {
    json_t *connection = ZelObj_getRow(connections, row);
    if (ZelRsp_connectionGetRxIndex(connection) == rxIndex)
      return Connection{
          Convert_accessModeEnumToString(static_cast<Info_AccessMode>(ZelRsp_connectionGetMode(connection))),
          ZelRsp_connectionGetSessionStartTime(connection)};
  }
  return Connection{std::string(), sessionStart};
}

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
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  const ZelResponse sessions(
      ZelReq_userSessionRetrieve(client, "[\"index\",\"index\",\"rxIndex\",\"sessionStartTime\"]"));
  if (!sessions)
    return;
  const ZelResponse connections(
      ZelReq_connectionRetrieve(client, "[\"index\",\"rxIndex\",\"txIndex\",\"mode\",\"sessionStartTime\"]"));

  const int count = ZelRspUtil_numEntries(sessions.get());
  if (count > 0)
    model->insertRows(0, count);
  for (int row = 0; row < count; ++row)
    fillRow(row, sessions.get(), connections.get());
}

void WDashViewSesList::fillRow(int row, json_t *sessions, json_t *connections)
{
  json_t *session = ZelObj_getRow(sessions, row);
  const unsigned int index =
      static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(sessions, row, "index"));
  const unsigned int rxIndex = ZelRsp_userSessionGetRxIndex(session);
  std::vector<std::string> errors;
  std::string username, receiver, transmitter;
  Db_db.getLoggedInUsernameFromRxIndex(rxIndex, username, errors);
  Db_db.getRxNameOrEidFromRxIndex(rxIndex, receiver, errors);
  Db_db.getTxNameOrEidFromUsrSesIndex(index, transmitter, errors);
  const Connection connection =
      connectionOf(connections, rxIndex, ZelRsp_userSessionGetSessionStartTime(session));

  model->setData(row, IndexColumn, boost::any(index), Wt::EditRole);
  model->setData(row, UsernameColumn, boost::any(username), Wt::EditRole);
  model->setData(row, ReceiverColumn, boost::any(receiver), Wt::EditRole);
  model->setData(row, TransmitterColumn, boost::any(transmitter), Wt::EditRole);
  model->setData(row, ModeColumn, boost::any(connection.mode), Wt::EditRole);
  model->setData(row, DurationColumn, boost::any(SessionDuration_since(connection.start)), Wt::EditRole);
}
