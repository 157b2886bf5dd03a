// SPDX-License-Identifier: MIT
#include "DeviceRows.h"

#include "Db.h"
#include "ZelReq.h"

RecordRows DeviceRows_retrieve(Info_DeviceType type, const char *select)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return RecordRows(nullptr);
  switch (type) {
  case Info_DeviceType_Rx:
    return RecordRows(ZelReq_rxRetrieve(client, select));
  case Info_DeviceType_Tx:
    return RecordRows(ZelReq_txRetrieve(client, select));
  case Info_DeviceType_Swx:
    return RecordRows(ZelReq_swxRetrieve(client, select));
  case Info_DeviceType_None:
    break;
  }
  return RecordRows(nullptr);
}

void DeviceRows_readName(const RecordRows &rows, unsigned int row, DeviceName &device)
{
  device.index = rows.number(row, "index");
  device.eid = rows.text(row, "eid");
  device.name = rows.text(row, "name");
}
