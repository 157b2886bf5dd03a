// SPDX-License-Identifier: MIT
#include "PortRecord.h"

#include "Db.h"
#include "RecordRows.h"
#include "ZelReq.h"

namespace
{

PortRecord portOf(const RecordRows &rows, unsigned int row)
{
  PortRecord port;
  port.portIndex = rows.number(row, "portIndex");
  port.remotePort = rows.number(row, "remotePort");
  port.deviceType = rows.text(row, "deviceType");
  port.eid = rows.text(row, "eid");
  port.portState = rows.text(row, "portState");
  return port;
}

} // namespace

std::optional<std::vector<PortRecord>> PortRecord::readOfSwitch(unsigned int swxIndex)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows::nested(ZelReq_portStatusRetrieveBySwxIndex(client, swxIndex), "swxIndex", "ports")
      .records(portOf);
}
