// SPDX-License-Identifier: MIT
#include "DeviceRecord.h"

#include "DeviceRows.h"

namespace
{

constexpr char kSelect[] =
    "[\"index\",\"eid\",\"name\",\"detailedDeviceType\",\"firmwareVersion\",\"status\","
    "\"upgradeStatus\",\"usage\",\"upgradePercent\",\"modeAllowed\"]";
constexpr char kSelectOfSwitch[] = "[\"index\",\"eid\",\"name\",\"detailedDeviceType\",\"firmwareVersion\","
                                   "\"status\",\"upgradeStatus\",\"usage\"]";

template <Info_DeviceType Type> DeviceRecord deviceOf(const RecordRows &rows, unsigned int row)
{
  DeviceRecord device;
  device.type = Type;
  DeviceRows_readName(rows, row, device);
  device.detailedType = rows.text(row, "detailedDeviceType");
  device.firmwareVersion = rows.text(row, "firmwareVersion");
  device.status = rows.text(row, "status");
  device.upgradeStatus = rows.text(row, "upgradeStatus");
  device.usage = rows.text(row, "usage");
  device.upgradePercent = rows.number(row, "upgradePercent");
  device.modeAllowed = rows.text(row, "modeAllowed");
  return device;
}

} // namespace

std::optional<std::vector<DeviceRecord>> DeviceRecord::readAll(Info_DeviceType type)
{
  switch (type) {
  case Info_DeviceType_Rx:
    return DeviceRows_retrieve(type, kSelect).records(deviceOf<Info_DeviceType_Rx>);
  case Info_DeviceType_Tx:
    return DeviceRows_retrieve(type, kSelect).records(deviceOf<Info_DeviceType_Tx>);
  case Info_DeviceType_Swx:
    return DeviceRows_retrieve(type, kSelectOfSwitch).records(deviceOf<Info_DeviceType_Swx>);
  case Info_DeviceType_None:
    break;
  }
  return std::nullopt;
}
