// SPDX-License-Identifier: MIT
#include "rules/RuleBook.h"
#include "rules/SwitchRoles.h"

namespace zelsim
{

namespace
{

Problem act(World &world, Call &call)
{
  const std::string action = call.text("cascadeRoleAction");
  if (action == "link_peer")
    return linkPeer(world, call.index);
  if (call.index != 1)
    return kInvalidCascadeChange;
  if (action == "unlink_peer")
    return unlinkPeer(world);
  return action == "promote_peer" ? promotePeer(world) : switchRoles(world);
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
