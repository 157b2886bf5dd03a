// SPDX-License-Identifier: MIT
#include "data/Fleet.h"

#include "data/FleetHistory.h"
#include "data/FleetNames.h"
#include "data/FleetScenes.h"
#include "data/MonitorBlock.h"
#include "data/Password.h"
#include "rules/Device.h"
#include "rules/MonitorData.h"

#include <algorithm>
#include <cstdio>

namespace zelsim
{

namespace
{

constexpr char kFirmwareOfFleet[] = "4.2.1"; // that new devices run

constexpr unsigned kLabDevices = 16; // of each kind
constexpr unsigned kLabSwitches = 3;
constexpr unsigned kDevicesPerSwitch = 200;
constexpr unsigned kFamilies[] = {3, 5, 1}; // of EIDs: receivers, transmitters, switches

struct Plan {
  unsigned devices; // of each kind
  unsigned switchCount;
  unsigned ports;
};

Plan planOf(const Settings &settings)
{
  if (!settings.fleet)
    return {kLabDevices, kLabSwitches, 24};
  const unsigned count = std::min(settings.fleet, 5000u);
  return {count, std::max(1u, (2 * count + kDevicesPerSwitch - 1) / kDevicesPerSwitch),
          kDevicesPerSwitch + 8};
}

void setIdentity(World &world, const Device &device, unsigned family, const char *part,
                 const std::string &name)
{
  Store &store = world.store;
  const char *resource = device.kind->resource;
  char serial[32];
  std::snprintf(serial, sizeof serial, "%u%06u", 26 + family, device.index);
  store.setText(resource, device.index, "eid", fleetEid(family, device.index));
  store.setText(resource, device.index, "name", name);
  store.setText(resource, device.index, "serialNumber", serial);
  store.setText(resource, device.index, "partNumber", part);
  store.setText(resource, device.index, "firmwareVersion", kFirmwareOfFleet);
  store.setText(resource, device.index, "status", "ready");
  addCompanions(world, device);
}

void makeSwitch(World &world, const Plan &plan, unsigned index)
{
  Store &store = world.store;
  store.create("swx", index);
  const Device device = {&kSwitches, index};
  setIdentity(world, device, kFamilies[2], "CS-2400", switchName(index));
  store.setNumber("swx", index, "portCount", plan.ports);
  store.setText("swx", index, "mode", index == 1 ? "master" : "slave");
  store.setText("swx", index, "cascadeRole", index == 1 ? "controller" : "slave");
  assignAddresses(world, index);
  if (index == 1) {
    store.setText("swx", 1, "location", "Building 4, level 1");
    store.setText("systemGlobals", 0, "masterSwitchEid", deviceEid(world, device));
  }
}

// Devices are spread over the switches in blocks; on a switch, receivers come before transmitters.
void attach(World &world, const Device &device, const Plan &plan)
{
  const unsigned perSwitch = (plan.devices + plan.switchCount - 1) / plan.switchCount;
  const unsigned swx = (device.index - 1) / perSwitch + 1;
  const unsigned place = (device.index - 1) % perSwitch + 1;
  world.store.setNumber(device.kind->resource, device.index, "attachedSwx", swx);
  world.store.setNumber(device.kind->resource, device.index, "attachedPort",
                        device.isReceiver() ? place : perSwitch + place);
}

void makeReceiver(World &world, const Plan &plan, unsigned index)
{
  world.store.create("rx", index);
  const bool first = index % 5 == 0;
  setIdentity(world, {&kReceivers, index}, kFamilies[0], first ? "CR-110" : "CR-216", receiverName(index));
  if (first)
    world.store.setText("rx", index, "detailedDeviceType", "rx_dvi_i");
  world.store.setNumber("rx", index, "monitor", 1 + index % 7);
  attach(world, {&kReceivers, index}, plan);
}

void makeTransmitter(World &world, const Plan &plan, unsigned index)
{
  world.store.create("tx", index);
  const bool analog = index % 6 == 0;
  setIdentity(world, {&kTransmitters, index}, kFamilies[1], analog ? "CT-105A" : "CT-210D",
              transmitterName(index));
  if (analog)
    world.store.setText("tx", index, "detailedDeviceType", "tx_vga");
  world.store.setNumber("tx", index, "iconIndex", 1 + index % 16);
  attach(world, {&kTransmitters, index}, plan);
}

void giveTargets(World &world, unsigned userIndex, unsigned transmitterCount)
{
  const Json targets(json_array());
  const Json favorites(json_array());
  for (unsigned i = 0; i < 6; ++i) {
    const unsigned tx = (userIndex * 3 + i * 2) % transmitterCount + 1;
    json_array_append_new(targets.get(), json_pack("{s:i}", "txIndex", static_cast<int>(tx)));
    if (i < 3)
      json_array_append_new(favorites.get(), json_pack("{s:i}", "txIndex", static_cast<int>(tx)));
  }
  world.store.setNested("userTargetList", userIndex, "target", targets.get());
  world.store.setNested("user", userIndex, "favorite", favorites.get());
}

void makeLibrary(World &world)
{
  std::size_t count = 0;
  const MonitorModel *models = monitorModels(count);
  addMonitor(world, "Switch default", "Built in, for computers without a monitor", monitorBlock(models[1], 1),
             true);
  for (unsigned i = 0; i < count; ++i)
    addMonitor(world, models[i].name, models[i].digital ? "Digital monitor" : "Analog monitor",
               monitorBlock(models[i], 0x1000 + i), false);
}

unsigned makeFirmwareSource(World &world, const char *protocol, const char *location, const char *file,
                            const char *type, const char *version)
{
  const unsigned index = world.store.create("upgrade");
  world.store.setText("upgrade", index, "protocol", protocol);
  world.store.setText("upgrade", index, "location", location);
  world.store.setText("upgrade", index, "filename", file);
  world.store.setText("upgrade", index, "deviceType", type);
  world.store.setText("upgrade", index, "version", version);
  return index;
}

void makeSources(World &world)
{
  makeFirmwareSource(world, "ftp", "10.20.30.5", "firmware/rx-4.3.0.bin", "rx", "4.3.0");
  // This one asks for a password that nobody has told the switch.
  const unsigned guarded =
      makeFirmwareSource(world, "https", "files.example.net", "tx-4.3.0.bin", "none", "");
  world.store.setText("upgrade", guarded, "username", "updates");
  if (!world.settings.fleet)
    return;
  makeFirmwareSource(world, "tftp", "10.20.30.5", "swx-4.3.0.bin", "swx", "4.3.0");
  makeFirmwareSource(world, "ftp", "10.20.30.6", "old/rx-4.2.9-missing.bin", "none", "");
}

} // namespace

void assignAddresses(World &world, unsigned swxIndex)
{
  const Json network = world.store.nested("swx", swxIndex, "network");
  json_t *four = json_object_get(network.get(), "ipv4"), *six = json_object_get(network.get(), "ipv6");
  const std::string host = std::to_string(10 + swxIndex);
  json_object_set_new(four, "ipAddress", json_string(("10.20.30." + host).c_str()));
  json_object_set_new(four, "subnetMask", json_string("255.255.255.0"));
  json_object_set_new(four, "gatewayAddress", json_string("10.20.30.1"));
  json_object_set_new(four, "ipv4PrimaryDnsServer", json_string("10.20.30.2"));
  json_object_set_new(four, "ipv4SecondaryDnsServer", json_string("10.20.30.3"));
  json_object_set_new(six, "ipAddress", json_string(("fd20:30::" + host).c_str()));
  json_object_set_new(six, "prefixLength", json_integer(64));
  json_object_set_new(six, "gatewayAddress", json_string("fd20:30::1"));
  json_object_set_new(six, "ipv6PrimaryDnsServer", json_string("fd20:30::2"));
  json_object_set_new(six, "ipv6SecondaryDnsServer", json_string("fd20:30::3"));
  world.store.setNested("swx", swxIndex, "network", network.get());
}

void makeAccounts(World &world, bool onlyFirst)
{
  Store &store = world.store;
  std::size_t count = 0;
  const Account *accounts = fleetAccounts(count);
  for (std::size_t i = 0; i < (onlyFirst ? 1 : count); ++i) {
    const Account &account = accounts[i];
    const unsigned index = store.create("user");
    store.setText("user", index, "name", account.name);
    store.setText("user", index, "mgrName", account.managerName);
    store.setText("user", index, "fullName", account.fullName);
    if (*account.password)
      store.setText("user", index, "password", hashPassword(account.password));
    store.setText("user", index, "role", account.administrator ? "admin" : "user");
    store.setText("user", index, "passwordIsInitialized",
                  account.passwordIsInitialized ? "is_true" : "is_false");
    store.setText("user", index, "accountEnable", account.enabled ? "enabled" : "disabled");
    store.setText("user", index, "allTargetAccess", account.allTargets ? "enabled" : "disabled");
    store.setText("user", index, "modeAllowed", account.modeAllowed);
    store.create("userTargetList", index);
  }
}

void makeFleet(World &world)
{
  const Plan plan = planOf(world.settings);
  for (unsigned index = 1; index <= plan.switchCount; ++index)
    makeSwitch(world, plan, index);
  for (unsigned index = 1; index <= plan.devices; ++index) {
    makeReceiver(world, plan, index);
    makeTransmitter(world, plan, index);
  }
  if (!world.settings.fleet)
    furnishLab(world);
  else if (!world.settings.sessions)
    furnishFleet(world);
  makeAccounts(world, false);
  for (const unsigned user : world.store.indexes("user"))
    if (!world.store.flag("user", user, "allTargetAccess"))
      giveTargets(world, user, plan.devices);
  furnishPeople(world);
  makeLibrary(world);
  makeSources(world);
  makeHistory(world);
}

} // namespace zelsim
