// SPDX-License-Identifier: MIT
#include "AlertRecord.h"

#include "Convert.h"
#include "Db.h"
#include "RecordRows.h"
#include "ZelReq.h"

namespace
{

/// What to select of either list; the instance comes all the same.
constexpr char kSelect[] = "\"date\",\"originatorEid\",\"severity\",\"alertMsg\"";

AlertRecord alertOf(const RecordRows &rows, unsigned int row)
{
  AlertRecord alert;
  alert.instanceId = rows.number(row, "instanceId");
  alert.date = static_cast<int>(rows.number(row, "date"));
  alert.severity = rows.text(row, "severity");
  alert.originatorEid = rows.textIfAny(row, "originatorEid");
  alert.message = rows.text(row, "alertMsg");
  return alert;
}

std::optional<std::vector<AlertRecord>> readAll(json_t *(*retrieve)(ZelClient_s *, const char *))
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows(retrieve(client, kSelect)).records(alertOf);
}

} // namespace

std::optional<std::vector<AlertRecord>> AlertRecord::readUnacknowledged()
{
  return readAll(ZelReq_unacknowledgedAlertsRetrieve);
}

std::optional<std::vector<AlertRecord>> AlertRecord::readHistory()
{
  return readAll(ZelReq_historicalAlertsRetrieve);
}

std::string AlertRecord::dateText() const
{
  char buffer[64];
  Convert_dateTimeStampToString(date, buffer, sizeof buffer);
  return buffer;
}

std::string AlertRecord::severityText() const
{
  return Convert_alertSeverityDbStringToUiString(severity);
}
