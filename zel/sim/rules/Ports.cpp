// SPDX-License-Identifier: MIT
#include "rules/Ports.h"

#include "data/JsonText.h"
#include "rules/Connections.h"
#include "rules/Topology.h"

#include <map>
#include <set>
#include <string>

namespace zelsim
{

namespace
{

// What hangs on a port.
struct Port {
  unsigned remotePort = 0;
  const char *type = "none";
  std::string eid;
  const char *state = "no_device";
};

// By port number.
using PortList = std::map<unsigned, Port>;

std::string textOf(const PortList &ports)
{
  std::string text = "[";
  for (const auto &[number, port] : ports) {
    if (text.size() > 1)
      text += ',';
    text += "{\"portIndex\":" + std::to_string(number) +
            ",\"remotePort\":" + std::to_string(port.remotePort) + ",\"deviceType\":\"" + port.type +
            "\",\"eid\":";
    appendJsonText(text, port.eid);
    text += std::string(",\"portState\":\"") + port.state + "\"}";
  }
  return text + ']';
}

// The devices of one kind whose place is on the switch. Goes by position, since all devices are looked at.
void addAttached(const World &world, const DeviceKind &kind, const std::set<unsigned> &connected,
                 unsigned swxIndex, PortList &ports)
{
  const Resource &resource = *findResource(kind.resource);
  const int swxAt = resource.position("attachedSwx"), portAt = resource.position("attachedPort");
  const int statusAt = resource.position("status"), eidAt = resource.position("eid");
  const int upgradeAt = resource.position("upgradeStatus");
  for (const auto &[index, record] : world.store.records(resource)) {
    if (world.store.value(resource, record, swxAt).number() != swxIndex ||
        world.store.value(resource, record, statusAt).text() == "offline")
      continue;
    const bool upgrading = world.store.value(resource, record, upgradeAt).text() == "upgrading";
    const char *state = upgrading ? "upgrading" : connected.count(index) != 0 ? "in_use" : "idle";
    ports[static_cast<unsigned>(world.store.value(resource, record, portAt).number())] = {
        1, kind.resource, std::string(world.store.value(resource, record, eidAt).text()), state};
  }
}

void addDevices(const World &world, unsigned swxIndex, PortList &ports)
{
  std::set<unsigned> rx, tx;
  for (const Connection &connection : connectionsOf(world)) {
    rx.insert(connection.rx);
    tx.insert(connection.tx);
  }
  addAttached(world, kReceivers, rx, swxIndex, ports);
  addAttached(world, kTransmitters, tx, swxIndex, ports);
}

// The links between this switch and its slaves lie behind the ports for devices.
void addLinks(const World &world, unsigned swxIndex, PortList &ports)
{
  const auto ownPorts = static_cast<unsigned>(world.store.number("swx", 1, "portCount"));
  unsigned slot = 0;
  for (const unsigned slave : world.store.indexes("swx")) {
    if (slave == 1)
      continue;
    const unsigned first = slot++ * kLinksPerSlave;
    const auto slavePorts = static_cast<unsigned>(world.store.number("swx", slave, "portCount"));
    const bool up = world.store.text("swx", slave, "status") == "ready";
    if (!up || (swxIndex != 1 && swxIndex != slave))
      continue;
    const unsigned inUse = linksInUse(world, slave);
    for (unsigned link = 1; link <= kLinksPerSlave; ++link) {
      const unsigned here = ownPorts + first + link, there = slavePorts + link;
      const char *state = link <= inUse ? "in_use" : "idle";
      if (swxIndex == 1)
        ports[here] = {there, "swx", world.store.text("swx", slave, "eid"), state};
      else
        ports[there] = {here, "swx", ownEid(world), state};
    }
  }
}

void addFaults(const World &world, unsigned swxIndex, PortList &ports)
{
  for (const unsigned fault : world.store.indexes("portFault")) {
    if (world.store.number("portFault", fault, "swx") != swxIndex)
      continue;
    const std::string word = world.store.text("portFault", fault, "state");
    for (const char *state :
         {"loopback_detected", "self_detected", "invalid_device", "device_error", "device_not_added"})
      if (word == state)
        ports[static_cast<unsigned>(world.store.number("portFault", fault, "port"))].state = state;
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
      ports[port] = {};
    addDevices(world, swxIndex, ports);
    addLinks(world, swxIndex, ports);
    addFaults(world, swxIndex, ports);
  }
  const Resource &resource = *findResource("portStatus");
  world.store.set(resource, swxIndex, resource.position("ports"), Value::nested(textOf(ports)));
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
  for (unsigned number = 1; number <= kPortStatusRecords; ++number) {
    world.store.create("portStatus", number);
    world.store.setNumber("portStatus", number, "swxIndex", number);
    refreshPorts(world, number);
  }
}

} // namespace zelsim
