// SPDX-License-Identifier: MIT
#include "life/DeviceStates.h"

#include "data/FleetNames.h"
#include "data/MonitorBlock.h"
#include "life/DeviceLife.h"
#include "rules/Alerts.h"
#include "rules/MonitorData.h"
#include "rules/Ports.h"
#include "rules/Rediscovery.h"
#include "rules/Sessions.h"

#include <algorithm>
#include <charconv>
#include <set>

namespace zelsim
{

namespace
{

struct Condition {
  const char *word;
  const char *status;
  bool alerts;
  AlertKind kind;
};

constexpr Condition kSwitchConditions[] = {
    {"dc_connected", "dc_connected", false, {}},
    {"isc_failure", "isc_failure", false, {}},
    {"conflict_is_master", "conflict_is_master", true, AlertKind::MoreThanOneMasterSwitch},
    {"conflict_other_master", "conflict_other_master", true, AlertKind::ConnectedSlaveSwitchHasOtherMaster},
    {"two_masters", "conflict_other_master", true, AlertKind::SlaveConnectedToTwoMasterSwitches},
};

struct PortCondition {
  const char *word;
  const char *state;
  bool losesDevice;
};

constexpr PortCondition kPortConditions[] = {{"loopback", "loopback_detected", true},
                                             {"self", "self_detected", true},
                                             {"invalid", "invalid_device", true},
                                             {"error", "device_error", true},
                                             {"not_added", "device_not_added", false}};

struct Hardware {
  const char *word;
  AlertKind begins;
  AlertKind ends;
  const char *part;
};

constexpr Hardware kHardware[] = {
    {"fan", AlertKind::FanFault, AlertKind::FanFaultCleared, "1"},
    {"voltage", AlertKind::VoltageFault, AlertKind::VoltageFaultCleared, "5 V"},
    {"power", AlertKind::PowerSupplyFault, AlertKind::PowerSupplyFaultCleared, "A"},
    {"temperature", AlertKind::TemperatureFault, AlertKind::TemperatureFaultCleared, "inlet"},
};

void setStatus(World &world, const Device &device, const char *status)
{
  world.store.setText(device.kind->resource, device.index, "status", status);
}

// From whatever state it is in.
void recover(World &world, const Device &device)
{
  setStatus(world, device, "offline");
  bringUp(world, device);
}

std::string setSwitchState(World &world, const Device &device, const std::string &word)
{
  const std::string present = deviceStatus(world, device);
  if (device.isSelf())
    return "that can't be said of this switch";
  if (word == "ready") {
    if (present != "ready")
      recover(world, device);
    return {};
  }
  for (const Condition &condition : kSwitchConditions) {
    if (word != condition.word)
      continue;
    loseAttached(world, device.index);
    setStatus(world, device, condition.status);
    world.store.setNumber("swx", device.index, "returnsAt", 0);
    refreshPorts(world, device.index);
    refreshPorts(world, 1);
    if (condition.alerts)
      raiseAlert(world, condition.kind, deviceEid(world, device), deviceLabel(world, device));
    return {};
  }
  return "\"" + word + "\" is no state of a switch";
}

unsigned numberOf(const World &world, const Device &device, const char *parameter)
{
  return static_cast<unsigned>(world.store.number(device.kind->resource, device.index, parameter));
}

void clearPortFault(World &world, unsigned swxIndex, unsigned port)
{
  for (const unsigned fault : world.store.indexes("portFault"))
    if (world.store.number("portFault", fault, "swx") == swxIndex &&
        world.store.number("portFault", fault, "port") == port)
      world.store.remove("portFault", fault);
}

// The device whose place is that port; its index is 0 if there is none.
Device deviceAt(const World &world, unsigned swxIndex, unsigned port)
{
  for (const Device &device : attachedTo(world, swxIndex))
    if (numberOf(world, device, "attachedPort") == port)
      return device;
  return {&kReceivers, 0};
}

void faultPort(World &world, unsigned swxIndex, unsigned port, const PortCondition &condition)
{
  const Device device = deviceAt(world, swxIndex, port);
  if (device.index && condition.losesDevice)
    takeOffline(world, device, 0);
  const unsigned fault = world.store.create("portFault");
  world.store.setNumber("portFault", fault, "swx", swxIndex);
  world.store.setNumber("portFault", fault, "port", port);
  world.store.setText("portFault", fault, "state", condition.state);
}

unsigned freePort(const World &world, unsigned swxIndex)
{
  std::set<unsigned> taken;
  for (const Device &device : attachedTo(world, swxIndex))
    taken.insert(numberOf(world, device, "attachedPort"));
  const auto count = static_cast<unsigned>(world.store.number("swx", swxIndex, "portCount"));
  for (unsigned port = 1; port <= count; ++port)
    if (taken.count(port) == 0)
      return port;
  return 0;
}

// Finds a place where there is room, as far as none is given.
bool findPlace(const World &world, unsigned &swxIndex, unsigned &port)
{
  if (swxIndex && port)
    return world.store.exists("swx", swxIndex) && port <= world.store.number("swx", swxIndex, "portCount") &&
           !deviceAt(world, swxIndex, port).index;
  for (const unsigned swx : world.store.indexes("swx"))
    if ((!swxIndex || swx == swxIndex) && (port = freePort(world, swx)) != 0) {
      swxIndex = swx;
      return true;
    }
  return false;
}

constexpr unsigned kReceiverFamily = 3, kTransmitterFamily = 5;

unsigned makeDevice(World &world, const Device &kind)
{
  const unsigned index = world.store.create(kind.kind->resource);
  const Device device = {kind.kind, index};
  if (!index)
    return 0;
  // Beyond the numbers of those that were there from the beginning, so that no EID comes twice.
  unsigned number = 5000 + index;
  const unsigned family = device.isReceiver() ? kReceiverFamily : kTransmitterFamily;
  while (findDevice(world, fleetEid(family, number)).index)
    ++number;
  const char *resource = device.kind->resource;
  world.store.setText(resource, index, "eid", fleetEid(family, number));
  world.store.setText(resource, index, "serialNumber", std::to_string(40000000 + number));
  world.store.setText(resource, index, "partNumber", device.isReceiver() ? "CR-216" : "CT-210D");
  world.store.setText(resource, index, "firmwareVersion", world.store.text("swx", 1, "firmwareVersion"));
  if (device.isReceiver())
    world.store.setNumber("rx", index, "monitor", 1);
  applyDefaults(world, device);
  addCompanions(world, device);
  return index;
}

} // namespace

std::string setDeviceState(World &world, const Device &device, const std::string &word)
{
  if (device.isSwitch())
    return setSwitchState(world, device, word);
  if (word == "ready") {
    if (deviceStatus(world, device) != "ready")
      recover(world, device);
    return {};
  }
  if (word != "in_recovery" && word != "configuring")
    return "\"" + word + "\" is no state of a receiver or transmitter";
  endSessionsOf(world, device, Ending::LinkDown);
  world.store.setNumber(device.kind->resource, device.index, "returnsAt", 0);
  setStatus(world, device, word.c_str());
  refreshPortsOf(world, device);
  return {};
}

std::string setSwitchUsage(World &world, unsigned swxIndex, const std::string &word)
{
  const bool capacity = word == "exceeds_unmanaged_capacity";
  if (!capacity && word != "maintenance" && word != "usable")
    return "\"" + word + "\" is none of usable, exceeds_unmanaged_capacity, maintenance";
  const Device swx = {&kSwitches, swxIndex};
  if (deviceText(world, swx, "usage") == word)
    return {};
  world.store.setText("swx", swxIndex, "usage", word);
  if (capacity)
    raiseAlert(world, AlertKind::SwitchExceedsUnmanagedCapacity, deviceEid(world, swx),
               deviceLabel(world, swx));
  for (const Device &device : attachedTo(world, swxIndex)) {
    if (word != "usable")
      endSessionsOf(world, device, Ending::Disconnected);
    world.store.setText(device.kind->resource, device.index, "usage",
                        capacity           ? "not_usable_swx_capacity"
                        : word == "usable" ? "usable"
                                           : "not_usable_swx_maintenance");
    if (capacity)
      raiseAlert(world,
                 device.isReceiver() ? AlertKind::ReceiverInExceededCapacitySwitch
                                     : AlertKind::TransmitterInExceededCapacitySwitch,
                 deviceEid(world, device), deviceLabel(world, device));
  }
  refreshPorts(world, swxIndex);
  return {};
}

std::string setPortState(World &world, unsigned swxIndex, unsigned port, const std::string &word,
                         unsigned other)
{
  const auto count = static_cast<unsigned>(world.store.number("swx", swxIndex, "portCount"));
  if (port < 1 || port > count || other > count)
    return "the switch has ports 1 to " + std::to_string(count);
  const bool self = word == "self";
  if (self && (!other || other == port))
    return "a port that is joined to another one needs the number of that";
  const PortCondition *condition =
      std::find_if(std::begin(kPortConditions), std::end(kPortConditions),
                   [&word](const PortCondition &row) { return word == row.word; });
  const bool well = word == "well";
  if (!well && condition == std::end(kPortConditions))
    return "\"" + word + "\" is none of loopback, self, invalid, error, not_added, well";
  for (const unsigned place : {port, self ? other : port}) {
    clearPortFault(world, swxIndex, place);
    if (!well)
      faultPort(world, swxIndex, place, *condition);
    else if (const Device device = deviceAt(world, swxIndex, place); device.index)
      bringUp(world, device);
  }
  const std::string eid = deviceEid(world, {&kSwitches, swxIndex});
  if (self)
    raiseAlert(world, AlertKind::SwitchPortsSelfConnected, eid, std::to_string(port), std::to_string(other));
  else if (word == "loopback")
    raiseAlert(world, AlertKind::LoopbackDetectedOnSwitchPort, eid, std::to_string(port));
  refreshPorts(world, swxIndex);
  return {};
}

std::string unplugDevice(World &world, const Device &device)
{
  if (device.isSwitch())
    return "only receivers and transmitters are unplugged";
  takeOffline(world, device, 0);
  world.store.setNumber(device.kind->resource, device.index, "attachedSwx", 0);
  world.store.setNumber(device.kind->resource, device.index, "attachedPort", 0);
  return {};
}

std::string plugDevice(World &world, Device device, unsigned swxIndex, unsigned port)
{
  if (device.isSwitch())
    return "only receivers and transmitters are plugged in";
  if (device.index && numberOf(world, device, "attachedSwx"))
    return "that one is plugged in";
  if (!findPlace(world, swxIndex, port))
    return "there is no such place that is free";
  if (!device.index)
    device.index = makeDevice(world, device);
  if (!device.index)
    return "there is no room for one more device";
  world.store.setNumber(device.kind->resource, device.index, "attachedSwx", swxIndex);
  world.store.setNumber(device.kind->resource, device.index, "attachedPort", port);
  const std::string usage = deviceText(world, {&kSwitches, swxIndex}, "usage");
  world.store.setText(device.kind->resource, device.index, "usage",
                      usage == "usable"        ? "usable"
                      : usage == "maintenance" ? "not_usable_swx_maintenance"
                                               : "not_usable_swx_capacity");
  bringUp(world, device);
  return {};
}

std::string attachMonitor(World &world, unsigned rxIndex, const std::string &word)
{
  std::size_t count = 0;
  monitorModels(count);
  unsigned number = 0;
  const auto parsed = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool isNumber = parsed.ec == std::errc() && parsed.ptr == word.data() + word.size();
  if (word == "broken")
    number = kBrokenMonitor;
  else if (word != "none" && (!isNumber || number < 1 || number > count))
    return "\"" + word + "\" is none of 1 to " + std::to_string(count) + ", none, broken";
  const Device rx = {&kReceivers, rxIndex};
  world.store.setNumber("rx", rxIndex, "monitor", number);
  world.store.touch(7);
  const bool broken = number == kBrokenMonitor;
  raiseAlert(world, broken ? AlertKind::DeviceReportedError : AlertKind::DeviceReportedInfo,
             deviceEid(world, rx), deviceLabel(world, rx),
             broken   ? "monitor data could not be read"
             : number ? "monitor attached"
                      : "monitor removed");
  return {};
}

std::string setHardwareFault(World &world, unsigned swxIndex, const std::string &word, bool over)
{
  for (const Hardware &hardware : kHardware)
    if (word == hardware.word) {
      raiseAlert(world, over ? hardware.ends : hardware.begins, deviceEid(world, {&kSwitches, swxIndex}),
                 hardware.part);
      return {};
    }
  return "\"" + word + "\" is none of fan, voltage, power, temperature";
}

} // namespace zelsim
