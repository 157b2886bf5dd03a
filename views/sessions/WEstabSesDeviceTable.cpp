// SPDX-License-Identifier: MIT
#include "WEstabSesDeviceTable.h"

#include "AccessRules.h"

WEstabSesDeviceTable::WEstabSesDeviceTable(const Wt::WString &eidHeading, const Wt::WString &nameHeading,
                                           Wt::WContainerWidget *parent)
    : WRecordTable(300, 200, {{eidHeading, 125}, {nameHeading, 150}}, parent)
{
}

bool WEstabSesDeviceTable::addDevices(Info_DeviceType type,
                                      const std::function<bool(const DeviceRecord &)> &offered)
{
  const auto devices = DeviceRecord::readAll(type);
  // A store without such devices answers with an error.
  if (!devices || devices->empty())
    return true;
  for (const DeviceRecord &device : *devices)
    if (AccessRules_inService(device) && offered(device))
      addRecord(device.index, {device.eid, device.name});
  return false;
}
