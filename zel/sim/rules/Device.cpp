// SPDX-License-Identifier: MIT
#include "rules/Device.h"

namespace zelsim
{

const DeviceKind kReceivers = {"rx",         "rxControl",         "rxUsbDiag",
                               kRxNotOnline, kRxAlreadyResetting, kRxResetUnsupported};
const DeviceKind kTransmitters = {"tx",         "txControl",         "txUsbDiag",
                                  kTxNotOnline, kTxAlreadyResetting, kTxResetUnsupported};
const DeviceKind kSwitches = {"swx", "swxControl", nullptr, kSwxNotOnline, kSwxAlreadyResetting, kOk};

const DeviceKind *const kDeviceKinds[3] = {&kReceivers, &kTransmitters, &kSwitches};

std::string deviceText(const World &world, const Device &device, const char *parameter)
{
  return world.store.text(device.kind->resource, device.index, parameter);
}

std::string deviceStatus(const World &world, const Device &device)
{
  return deviceText(world, device, "status");
}

std::string deviceEid(const World &world, const Device &device)
{
  return deviceText(world, device, "eid");
}

std::string deviceLabel(const World &world, const Device &device)
{
  const std::string name = deviceText(world, device, "name");
  return name.empty() ? deviceEid(world, device) : name;
}

std::string ownEid(const World &world)
{
  return world.store.text("swx", 1, "eid");
}

Device findDevice(const World &world, const std::string &eid)
{
  for (const DeviceKind *kind : kDeviceKinds)
    if (const unsigned index = world.store.findText(kind->resource, "eid", eid))
      return {kind, index};
  return {&kSwitches, 0};
}

void addCompanions(World &world, const Device &device)
{
  world.store.create(device.kind->control, device.index);
  world.store.setText(device.kind->control, device.index, "eid", deviceEid(world, device));
  if (device.kind->diagnostics)
    world.store.create(device.kind->diagnostics, device.index);
}

void removeCompanions(World &world, const Device &device)
{
  world.store.remove(device.kind->control, device.index);
  if (device.kind->diagnostics)
    world.store.remove(device.kind->diagnostics, device.index);
}

} // namespace zelsim
