// SPDX-License-Identifier: MIT
#include "rules/Ports.h"

#include <map>

namespace zelsim
{

namespace
{

using PortList = std::map<unsigned, Json>;

Json portRow(unsigned port, unsigned remotePort, const char *type, const std::string &eid, const char *state)
{
  return Json(json_pack("{s:i,s:i,s:s,s:s,s:s}", "portIndex", static_cast<int>(port), "remotePort",
                        static_cast<int>(remotePort), "deviceType", type, "eid", eid.c_str(), "portState",
                        state));
}

const char *portState(const World &world, const Device &device)
{
  if (deviceText(world, device, "upgradeStatus") == "upgrading")
    return "upgrading";
  const char *key = device.isReceiver() ? "rxIndex" : "txIndex";
  return world.store.findNumber("connection", key, device.index) ? "in_use" : "idle";
}

// The devices of one kind whose place is on the switch. Goes by position, since all devices are looked at.
void addAttached(const World &world, const DeviceKind &kind, unsigned swxIndex, PortList &ports)
{
  const Resource &resource = *findResource(kind.resource);
  const int swxAt = resource.position("attachedSwx");
  const int portAt = resource.position("attachedPort");
  for (const auto &entry : world.store.records(resource)) {
    const Value *swx = world.store.value(resource, entry.first, swxAt);
    if (!swx || swx->number() != swxIndex)
      continue;
    const Device device = {&kind, entry.first};
    const auto port = static_cast<unsigned>(world.store.value(resource, entry.first, portAt)->number());
    if (deviceStatus(world, device) == "offline")
      continue;
    ports[port] = portRow(port, 1, kind.resource, deviceEid(world, device), portState(world, device));
  }
}

// The links between this switch and its slaves lie behind the ports for devices.
void addLinks(const World &world, unsigned swxIndex, PortList &ports)
{
  const auto ownPorts = static_cast<unsigned>(world.store.number("swx", 1, "portCount"));
  unsigned slot = 0;
  for (const unsigned slave : world.store.indexes("swx")) {
    if (slave == 1)
      continue;
    const unsigned first = slot++ * linksPerSlave;
    const auto slavePorts = static_cast<unsigned>(world.store.number("swx", slave, "portCount"));
    const bool up = world.store.text("swx", slave, "status") == "ready";
    for (unsigned link = 1; up && link <= linksPerSlave; ++link) {
      const unsigned here = ownPorts + first + link, there = slavePorts + link;
      if (swxIndex == 1)
        ports[here] = portRow(here, there, "swx", world.store.text("swx", slave, "eid"), "idle");
      else if (swxIndex == slave)
        ports[there] = portRow(there, here, "swx", ownEid(world), "idle");
    }
  }
}

} // namespace

void refreshPorts(World &world, unsigned swxIndex)
{
  if (!world.store.exists("portStatus", swxIndex))
    return;
  PortList ports;
  if (world.store.exists("swx", swxIndex) && world.store.text("swx", swxIndex, "status") != "offline") {
    const auto count = static_cast<unsigned>(world.store.number("swx", swxIndex, "portCount"));
    for (unsigned port = 1; port <= count; ++port)
      ports[port] = portRow(port, 0, "none", "", "no_device");
    addAttached(world, receivers, swxIndex, ports);
    addAttached(world, transmitters, swxIndex, ports);
    addLinks(world, swxIndex, ports);
  }
  const Json list(json_array());
  for (auto &entry : ports)
    json_array_append(list.get(), entry.second.get());
  world.store.setNested("portStatus", swxIndex, "ports", list.get());
}

void refreshPortsOf(World &world, const Device &device)
{
  if (device.isSwitch())
    refreshPorts(world, device.index);
  else
    refreshPorts(
        world, static_cast<unsigned>(world.store.number(device.kind->resource, device.index, "attachedSwx")));
}

void makePortStatus(World &world)
{
  for (unsigned number = 1; number <= portStatusRecords; ++number) {
    world.store.create("portStatus", number);
    world.store.setNumber("portStatus", number, "swxIndex", number);
    refreshPorts(world, number);
  }
}

} // namespace zelsim
