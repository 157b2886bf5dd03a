// SPDX-License-Identifier: MIT
#include "DeviceName.h"

#include "DeviceRows.h"

namespace
{

constexpr char kSelect[] = "[\"index\",\"eid\",\"name\"]";

DeviceName deviceOf(const RecordRows &rows, unsigned int row)
{
  DeviceName device;
  DeviceRows_readName(rows, row, device);
  return device;
}

} // namespace

std::optional<std::vector<DeviceName>> DeviceName::readAll(Info_DeviceType type)
{
  return DeviceRows_retrieve(type, kSelect).records(deviceOf);
}
