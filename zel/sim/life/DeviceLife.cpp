// SPDX-License-Identifier: MIT
#include "life/DeviceLife.h"

#include "rules/Alerts.h"
#include "rules/FactoryDefaults.h"
#include "rules/GoDark.h"
#include "rules/Management.h"
#include "rules/Ports.h"
#include "rules/Sessions.h"
#include "rules/SettingsText.h"
#include "rules/SwitchRoles.h"
#include "rules/TimeService.h"

#include <algorithm>
#include <vector>

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kPendingTime = 1000, downTime = 3000, configuringTime = 2000, switchTime = 6000;
// So long the answer to the command that restarts this switch has to get out.
constexpr Clock::Milliseconds kLastWords = 1000;

void step(World &world, const Device &device);

void setStatus(World &world, const Device &device, const char *status)
{
  world.store.setText(device.kind->resource, device.index, "status", status);
}

void setReturn(World &world, const Device &device, std::int64_t at)
{
  world.store.setNumber(device.kind->resource, device.index, "returnsAt", at);
}

// Has the next step taken after `delay`, unless the device has gone another way by then.
void scheduleStep(World &world, const Device &device, Clock::Milliseconds delay)
{
  setReturn(world, device, (world.clock.nowMs() + delay + 999) / 1000);
  const std::string status = deviceStatus(world, device);
  world.clock.after(delay, [&world, device, status] {
    if (world.store.number(device.kind->resource, device.index, "returnsAt") &&
        deviceStatus(world, device) == status)
      step(world, device);
  });
}

// A device that comes up runs the firmware that it was given, and an update that was complete is over.
void startFirmware(World &world, const Device &device)
{
  const char *resource = device.kind->resource;
  const std::string next = deviceText(world, device, "nextFirmware");
  if (!next.empty())
    world.store.setText(resource, device.index, "firmwareVersion", next);
  world.store.setText(resource, device.index, "nextFirmware", "");
  world.store.setText(resource, device.index, "upgradeStatus", "idle");
  world.store.setNumber(resource, device.index, "upgradePercent", 0);
}

void tellDifference(World &world, const Device &device)
{
  const std::string master = world.store.text("swx", 1, "firmwareVersion");
  if (device.isSwitch() && !device.isSelf() && deviceText(world, device, "firmwareVersion") != master)
    raiseAlert(world, AlertKind::SwitchFirmwareVersionDifference, deviceEid(world, device),
               deviceLabel(world, device));
}

void restore(World &world, const Device &device)
{
  const std::string word = deviceText(world, device, "pendingReset");
  world.store.setText(device.kind->resource, device.index, "pendingReset", "none");
  if (word == "none")
    return;
  if (word == "factory_default" || word == "factory_default_partial")
    restoreFactoryDefaults(world, device, word == "factory_default_partial");
  const bool isUpdated = !deviceText(world, device, "nextFirmware").empty();
  startFirmware(world, device);
  if (isUpdated)
    tellDifference(world, device);
}

void logInAutomatically(World &world, unsigned rxIndex)
{
  const auto user = static_cast<unsigned>(world.store.number("rx", rxIndex, "autoLoginUserIndex"));
  if (!world.store.flag("rx", rxIndex, "autoLoginControl") || !logIn(world, user, rxIndex, true))
    return;
  const unsigned tx = world.store.findText("tx", "eid", world.store.text("rx", rxIndex, "autoConnectTxEid"));
  if (world.store.flag("rx", rxIndex, "autoConnectControl") && tx)
    connect(world, rxIndex, tx, world.store.text("rx", rxIndex, "autoConnectMode"));
}

// Settings that were loaded take effect when the switch starts.
void installPendingSettings(World &world)
{
  const std::string text = world.store.text("systemGlobals", 0, "pendingSettings");
  if (text.empty())
    return;
  world.store.setText("systemGlobals", 0, "pendingSettings", "");
  installSettings(world, text);
  followManagedSetting(world);
}

void becomeReady(World &world, const Device &device)
{
  restore(world, device);
  if (device.isSelf())
    installPendingSettings(world);
  setStatus(world, device, "ready");
  setReturn(world, device, 0);
  if (device.isSwitch()) {
    if (device.isSelf())
      takeUpRole(world);
    regainAttached(world, device.index);
    noteSwitchBack(world, device.index);
    if (world.store.flag("swx", device.index, "ntpEnable"))
      synchronizeTime(world, device.index);
    return;
  }
  refreshPortsOf(world, device);
  if (device.isReceiver())
    logInAutomatically(world, device.index);
}

void step(World &world, const Device &device)
{
  const std::string status = deviceStatus(world, device);
  if (device.isSwitch()) {
    becomeReady(world, device);
  } else if (status == "reset_pending") {
    endSessionsOf(world, device, Ending::LinkDown);
    setStatus(world, device, "offline");
    refreshPortsOf(world, device);
    scheduleStep(world, device, downTime);
  } else if (status == "offline") {
    setStatus(world, device, "configuring");
    refreshPortsOf(world, device);
    scheduleStep(world, device, configuringTime);
  } else {
    becomeReady(world, device);
  }
}

// A switch that restarts has forgotten who was logged in to it.
void forgetAdministrators(World &world)
{
  for (const unsigned session : world.store.indexes("adminSession"))
    world.store.remove("adminSession", session);
}

} // namespace

std::vector<Device> attachedTo(const World &world, unsigned swxIndex)
{
  std::vector<Device> devices;
  for (const DeviceKind *kind : {&kReceivers, &kTransmitters}) {
    const Resource &resource = *findResource(kind->resource);
    const int position = resource.position("attachedSwx");
    for (const auto &entry : world.store.records(resource))
      if (world.store.value(resource, entry.second, position).number() == swxIndex)
        devices.push_back({kind, entry.first});
  }
  return devices;
}

void loseAttached(World &world, unsigned swxIndex)
{
  for (const Device &device : attachedTo(world, swxIndex)) {
    if (deviceStatus(world, device) == "offline")
      continue;
    endSessionsOf(world, device, Ending::LinkDown);
    setStatus(world, device, "offline");
    // Not a time to return at, but a mark that the switch brings it back.
    setReturn(world, device, 1);
  }
}

void regainAttached(World &world, unsigned swxIndex)
{
  for (const Device &device : attachedTo(world, swxIndex))
    if (deviceStatus(world, device) == "offline" &&
        world.store.number(device.kind->resource, device.index, "returnsAt") == 1)
      bringUp(world, device);
  refreshPorts(world, swxIndex);
  refreshPorts(world, 1);
}

Problem mayReset(const World &world, const Device &device, const std::string &word)
{
  const std::string status = deviceStatus(world, device);
  if (status == "offline")
    return device.kind->notOnline;
  if (world.store.number(device.kind->resource, device.index, "returnsAt"))
    return device.kind->alreadyResetting;
  if (word == "factory_default_partial" && device.kind->partialUnsupported != kOk)
    return device.kind->partialUnsupported;
  if (deviceText(world, device, "upgradeStatus") == "upgrading")
    return kInUse;
  return kOk;
}

void beginReset(World &world, const Device &device, const std::string &word)
{
  world.store.setText(device.kind->resource, device.index, "pendingReset", word);
  if (!device.isSwitch()) {
    setStatus(world, device, "reset_pending");
    scheduleStep(world, device, kPendingTime);
    return;
  }
  setStatus(world, device, "resetting");
  loseAttached(world, device.index);
  refreshPorts(world, device.index);
  scheduleStep(world, device, switchTime);
  if (device.isSelf()) {
    forgetAdministrators(world);
    goDark(world, kLastWords, switchTime);
  }
}

void takeOffline(World &world, const Device &device, Clock::Milliseconds returnAfter)
{
  if (device.isSelf() || deviceStatus(world, device) == "offline")
    return;
  if (device.isSwitch())
    loseAttached(world, device.index);
  else
    endSessionsOf(world, device, Ending::LinkDown);
  setStatus(world, device, "offline");
  setReturn(world, device, 0);
  refreshPortsOf(world, device);
  if (device.isSwitch()) {
    refreshPorts(world, 1);
    noteSwitchLost(world, device.index);
  }
  if (returnAfter > 0)
    scheduleStep(world, device, returnAfter);
}

void bringUp(World &world, const Device &device)
{
  if (deviceStatus(world, device) != "offline")
    return;
  setReturn(world, device, 1);
  step(world, device);
}

void resumeDevices(World &world)
{
  for (const DeviceKind *kind : kDeviceKinds)
    for (const unsigned index : world.store.indexes(kind->resource)) {
      const std::int64_t at = world.store.number(kind->resource, index, "returnsAt");
      const Device device = {kind, index};
      if (at <= 1)
        continue;
      const Clock::Milliseconds rest = std::max<std::int64_t>(0, at * 1000 - world.clock.nowMs());
      if (device.isSelf())
        goDark(world, 0, rest);
      scheduleStep(world, device, rest);
    }
}

} // namespace zelsim
