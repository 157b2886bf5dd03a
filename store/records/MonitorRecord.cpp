// SPDX-License-Identifier: MIT
#include "MonitorRecord.h"

#include "Db.h"
#include "EdidFacts.h"
#include "RecordRows.h"
#include "ZelReq.h"

namespace
{

MonitorRecord monitorOf(const RecordRows &rows, unsigned int row)
{
  MonitorRecord monitor;
  monitor.index = rows.number(row, "index");
  monitor.name = rows.text(row, "name");
  monitor.description = rows.text(row, "description");
  char block[kEdidSize];
  rows.bytes(row, "data", block, sizeof block);
  EdidFacts_read(block, monitor.manufacturer, monitor.productCode, monitor.typeKey);
  monitor.isProtected = rows.text(row, "isProtected") == "is_true";
  return monitor;
}

} // namespace

std::optional<std::vector<MonitorRecord>> MonitorRecord::readAll()
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows(ZelReq_edidRetrieve(client, nullptr)).records(monitorOf);
}
