// SPDX-License-Identifier: MIT
#include "ConnectionRecord.h"

#include "Convert.h"
#include "Db.h"
#include "RecordRows.h"
#include "ZelReq.h"
#include "ZelRsp.h"

namespace
{

constexpr char kSelect[] = "[\"index\",\"rxIndex\",\"txIndex\",\"mode\",\"sessionStartTime\"]";

ConnectionRecord connectionOf(const RecordRows &rows, unsigned int row)
{
  const json_t *values = rows.row(row);
  ConnectionRecord connection;
  connection.index = ZelRsp_connectionGetIndex(values);
  connection.rxIndex = ZelRsp_connectionGetRxIndex(values);
  connection.txIndex = ZelRsp_connectionGetTxIndex(values);
  connection.mode = ZelRsp_connectionGetMode(values);
  connection.startTime = ZelRsp_connectionGetSessionStartTime(values);
  return connection;
}

std::optional<std::vector<ConnectionRecord>> read(const char *select)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows(ZelReq_connectionRetrieve(client, select)).records(connectionOf);
}

} // namespace

std::optional<std::vector<ConnectionRecord>> ConnectionRecord::readAll()
{
  return read(nullptr);
}

std::optional<std::vector<ConnectionRecord>> ConnectionRecord::readSelected()
{
  return read(kSelect);
}

std::string ConnectionRecord::modeText() const
{
  // What a session is and what a device allows have their words in common.
  return Convert_accessModeEnumToString(static_cast<Info_AccessMode>(mode));
}
