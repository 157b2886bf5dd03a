// SPDX-License-Identifier: MIT
#include "rules/FactoryDefaults.h"

#include "data/Fleet.h"
#include "rules/Rediscovery.h"

#include <string_view>
#include <vector>

namespace zelsim
{

namespace
{

// What a device is, as against how it is set.
const std::vector<std::string_view> kIdentity = {
    "eid",          "detailedDeviceType", "status",       "usage",         "serialNumber",
    "partNumber",   "firmwareVersion",    "nextFirmware", "upgradeStatus", "upgradePercent",
    "upgradeIndex", "returnsAt",          "attachedSwx",  "attachedPort",  "monitor",
    "portCount",    "keyboardLayout",     "pendingReset",
};

void removeAll(World &world, const char *resource)
{
  for (const unsigned index : world.store.indexes(resource))
    world.store.remove(resource, index);
}

void restoreOne(World &world, const Device &device, bool keepNetwork)
{
  std::vector<std::string_view> keep = kIdentity;
  if (device.isSwitch())
    keep.push_back("cascadeRole");
  // A slave that forgot its part would drop out of the system that it is restored from.
  if (device.isSwitch() && !device.isSelf())
    keep.push_back("mode");
  if (keepNetwork)
    keep.push_back("network");
  world.store.reset(device.kind->resource, device.index, keep);
  if (device.isSwitch() && !keepNetwork)
    assignAddresses(world, device.index);
  if (device.isSelf())
    world.store.setText("swx", 1, "mode", "master");
  applyDefaults(world, device);
}

void restoreAccounts(World &world)
{
  for (const char *resource : {"connection", "userSession", "adminSession", "userTargetList", "user"})
    removeAll(world, resource);
  makeAccounts(world, true);
}

void restoreSystem(World &world, bool keepNetwork)
{
  for (const char *resource : {"cfgDefaults", "eventLogControl", "alertLogControl"})
    world.store.reset(resource, 0, {});
  world.store.reset("systemGlobals", 0, {"masterSwitchEid", "settingsKey"});
  for (const DeviceKind *kind : kDeviceKinds)
    for (const unsigned index : world.store.indexes(kind->resource))
      restoreOne(world, {kind, index}, keepNetwork || kind != &kSwitches || index != 1);
  restoreAccounts(world);
  removeAll(world, "upgrade");
  for (const unsigned index : world.store.indexes("edid"))
    if (!world.store.flag("edid", index, "isProtected"))
      world.store.remove("edid", index);
}

} // namespace

void restoreFactoryDefaults(World &world, const Device &device, bool keepNetwork)
{
  if (device.isSelf())
    restoreSystem(world, keepNetwork);
  else
    restoreOne(world, device, keepNetwork);
}

} // namespace zelsim
