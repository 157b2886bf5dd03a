// SPDX-License-Identifier: MIT
#include "WEstabSesDeviceTable.h"

#include "AccessRules.h"

WEstabSesDeviceTable::WEstabSesDeviceTable(const Wt::WString &eidHeading, const Wt::WString &nameHeading,
                                           Wt::WContainerWidget *parent)
    : WRecordTable(300, 200, {{eidHeading, Wt::AlignLeft, 125}, {nameHeading, Wt::AlignLeft, 150}}, parent)
{
}

bool WEstabSesDeviceTable::showDevices(Info_DeviceType type,
                                       const std::function<bool(const DeviceRecord &)> &offered)
{
  const auto devices = DeviceRecord::readAll(type);
  if (!devices) {
    records->show(std::nullopt);
    return true;
  }
  ListRows rows;
  for (const DeviceRecord &device : *devices)
    if (AccessRules_inService(device) && offered(device))
      rows.push_back({device.index, {device.eid, device.name}});
  records->show(rows);
  // A store without such devices answers with an error.
  return devices->empty();
}
