// SPDX-License-Identifier: MIT
#include "life/DeviceLife.h"
#include "rules/Ports.h"
#include "rules/Rediscovery.h"
#include "rules/RuleBook.h"
#include "rules/Sessions.h"
#include "rules/SwitchRoles.h"

#include <string>

namespace zelsim
{

namespace
{

bool isOnePair(const World &world, const Device &device)
{
  return device.isSwitch() && (device.isSelf() || device.index == peerIndex(world)) &&
         !peerEid(world).empty();
}

Problem checkReset(const World &world, const Device &device, const Call &call)
{
  const std::string word = call.text("reset");
  if (!call.has("reset") || word == "none")
    return kOk;
  if (word != "cold_reboot" && isOnePair(world, device))
    return kRestoreWithLinkedPeer;
  return mayReset(world, device, word);
}

Problem checkRemoval(const World &world, const Device &device)
{
  if (device.isSelf())
    return kNotAllowed;
  if (device.isSwitch() && device.index == peerIndex(world))
    return deviceStatus(world, device) == "offline" ? kDeleteOfflinePeer : kNotAllowed;
  const char *key = device.isReceiver() ? "rxIndex" : "txIndex";
  if (!device.isSwitch() && world.store.findNumber("connection", key, device.index))
    return kInUse;
  return deviceText(world, device, "upgradeStatus") == "upgrading" ? kInUse : kOk;
}

void dropEntry(World &world, const char *resource, unsigned index, const char *parameter, unsigned txIndex)
{
  const Json before = world.store.nested(resource, index, parameter);
  const Json after(json_array());
  std::size_t i = 0;
  json_t *entry = nullptr;
  json_array_foreach(before.get(), i, entry)
  {
    if (json_integer_value(json_object_get(entry, "txIndex")) != txIndex)
      json_array_append(after.get(), entry);
  }
  if (json_array_size(after.get()) != json_array_size(before.get()))
    world.store.setNested(resource, index, parameter, after.get());
}

void forgetTarget(World &world, unsigned txIndex)
{
  for (const unsigned user : world.store.indexes("user")) {
    dropEntry(world, "user", user, "favorite", txIndex);
    dropEntry(world, "userTargetList", user, "target", txIndex);
  }
}

Problem removeTraces(World &world, const Device &device)
{
  endSessionsOf(world, device, Ending::Disconnected);
  if (device.isTransmitter())
    forgetTarget(world, device.index);
  if (world.settings.liveliness > 0 && deviceStatus(world, device) != "offline")
    rediscoverLater(world, device);
  if (device.isSwitch())
    loseAttached(world, device.index);
  removeCompanions(world, device);
  const auto swx = static_cast<unsigned>(
      device.isSwitch() ? device.index
                        : world.store.number(device.kind->resource, device.index, "attachedSwx"));
  world.clock.after(0, [&world, swx] {
    refreshPorts(world, swx);
    refreshPorts(world, 1);
  });
  return kOk;
}

void registerKind(Rules &rules, const DeviceKind *kind)
{
  rules.check(kind->resource, Method::Set, [kind](World &world, const Call &call) {
    return checkReset(world, {kind, call.index}, call);
  });
  rules.onParameter(kind->resource, "reset", [kind](World &world, Call &call) -> Problem {
    if (call.text("reset") != "none")
      beginReset(world, {kind, call.index}, call.text("reset"));
    return kOk;
  });
  rules.check(kind->resource, Method::Delete, [kind](World &world, const Call &call) {
    return checkRemoval(world, {kind, call.index});
  });
  rules.act(kind->resource, Method::Delete, [kind](World &world, Call &call) {
    return removeTraces(world, {kind, call.index});
  });
}

} // namespace

void registerDeviceRules(Rules &rules)
{
  for (const DeviceKind *kind : kDeviceKinds)
    registerKind(rules, kind);
  // Attributes of a switch in conflict belong to the other master.
  rules.check("swx", Method::Set, [](World &world, const Call &call) -> Problem {
    const std::string status = world.store.text("swx", call.index, "status");
    const bool conflict = status == "conflict_is_master" || status == "conflict_other_master";
    return conflict && !call.has("reset") ? Problem(kSwxNotReady) : Problem();
  });
}

} // namespace zelsim
