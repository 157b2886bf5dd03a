// SPDX-License-Identifier: MIT
#include "rules/Device.h"
#include "rules/RuleBook.h"
#include "rules/SwitchRoles.h"

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kChangeTime = 2000;

bool peerHasControl(const World &world)
{
  return world.store.text("systemGlobals", 0, "cascadeController") == "peer";
}

void setRole(World &world, unsigned index, const char *role)
{
  world.store.setText("swx", index, "cascadeRole", role);
}

Problem link(World &world, unsigned index)
{
  const bool isController = world.store.text("swx", 1, "cascadeRole") == "controller";
  const bool isCandidate = index != 1 && world.store.text("swx", index, "mode") == "slave" &&
                           world.store.text("swx", index, "usage") == "usable";
  if (!isController || !isCandidate || !peerEid(world).empty())
    return kInvalidCascadeChange;
  if (world.store.text("swx", index, "status") != "ready")
    return kBackupNotReady;
  const std::string eid = deviceEid(world, {&kSwitches, index});
  world.store.setText("systemGlobals", 0, "peerControllerSwitchEid", eid);
  // The peer takes over the configuration before it can be a backup.
  world.clock.after(kChangeTime, [&world, index, eid] {
    if (peerEid(world) == eid)
      setRole(world, index, "backup");
  });
  return kOk;
}

Problem unlink(World &world)
{
  const unsigned peer = peerIndex(world);
  if (peerEid(world).empty() || peerHasControl(world))
    return kInvalidCascadeChange;
  if (peer && deviceStatus(world, {&kSwitches, peer}) == "offline")
    return kDeleteOfflinePeer;
  world.store.setText("systemGlobals", 0, "peerControllerSwitchEid", "");
  if (peer)
    setRole(world, peer, "slave");
  return kOk;
}

// Gives the control to one switch of the pair and makes the other one its backup.
void giveControl(World &world, unsigned controller, unsigned backup)
{
  world.store.setText("systemGlobals", 0, "cascadeController", controller == 1 ? "this" : "peer");
  world.store.setText("systemGlobals", 0, "masterSwitchEid", deviceEid(world, {&kSwitches, controller}));
  setRole(world, controller, "controller");
  setRole(world, backup, "backup");
  world.store.setText("swx", controller, "mode", "master");
  world.store.setText("swx", backup, "mode", "slave");
}

Problem switchRoles(World &world)
{
  const unsigned peer = peerIndex(world);
  if (!peer)
    return kInvalidCascadeChange;
  const unsigned backup = peerHasControl(world) ? 1 : peer;
  if (world.store.text("swx", backup, "status") != "ready" ||
      world.store.text("swx", backup, "cascadeRole") != "backup")
    return kBackupNotReady;
  world.clock.after(kChangeTime,
                    [&world, backup, peer] { giveControl(world, backup, backup == 1 ? peer : 1); });
  return kOk;
}

Problem promote(World &world)
{
  const unsigned peer = peerIndex(world);
  if (!peerHasControl(world) || !peer)
    return kInvalidCascadeChange;
  world.clock.after(kChangeTime, [&world, peer] { giveControl(world, 1, peer); });
  return kOk;
}

Problem act(World &world, Call &call)
{
  const std::string action = call.text("cascadeRoleAction");
  if (action == "link_peer")
    return link(world, call.index);
  if (call.index != 1)
    return kInvalidCascadeChange;
  if (action == "unlink_peer")
    return unlink(world);
  return action == "promote_peer" ? promote(world) : switchRoles(world);
}

// The part of a switch is set on the switch itself, and not while it is one of a pair.
Problem checkMode(World &world, const Call &call)
{
  const std::string present = world.store.text("swx", call.index, "mode");
  if (!call.has("mode") || call.text("mode") == present)
    return kOk;
  return call.index != 1 || !peerEid(world).empty() ? kInvalidCascadeChange : kOk;
}

} // namespace

void registerCascadeRules(Rules &rules)
{
  rules.onParameter("swxControl", "cascadeRoleAction", act);
  rules.check("swx", Method::Set, checkMode);
}

} // namespace zelsim
