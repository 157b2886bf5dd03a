// SPDX-License-Identifier: MIT
#include "rules/SwitchRoles.h"

namespace zelsim
{

std::string peerEid(const World &world)
{
  return world.store.text("systemGlobals", 0, "peerControllerSwitchEid");
}

unsigned peerIndex(const World &world)
{
  const std::string eid = peerEid(world);
  return eid.empty() ? 0 : world.store.findText("swx", "eid", eid);
}

void takeUpRole(World &world)
{
  if (!peerEid(world).empty())
    return;
  const bool master = world.store.text("swx", 1, "mode") == "master";
  world.store.setText("swx", 1, "cascadeRole", master ? "controller" : "slave");
  if (master)
    world.store.setText("systemGlobals", 0, "masterSwitchEid", world.store.text("swx", 1, "eid"));
}

} // namespace zelsim
