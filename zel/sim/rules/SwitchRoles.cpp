// SPDX-License-Identifier: MIT
#include "rules/SwitchRoles.h"

#include "life/Steps.h"
#include "rules/Device.h"
#include "rules/Management.h"

namespace zelsim
{

const char kRoleWords[] = "master slave backup managed managed-slave";

namespace
{

constexpr Clock::Milliseconds kChangeTime = 2000, kPatience = 10000;
// The neighbour that is the other one of a pair, or the master, where a role needs one.
constexpr unsigned kNeighbour = 2;

bool peerHasControl(const World &world)
{
  return world.store.text("systemGlobals", 0, "cascadeController") == "peer";
}

std::string roleOf(const World &world, unsigned index)
{
  return world.store.text("swx", index, "cascadeRole");
}

void setRole(World &world, unsigned index, const char *role)
{
  world.store.setText("swx", index, "cascadeRole", role);
}

std::string eidOf(const World &world, unsigned index)
{
  return world.store.text("swx", index, "eid");
}

bool isReady(const World &world, unsigned index)
{
  return world.store.text("swx", index, "status") == "ready";
}

bool isOffline(const World &world, unsigned index)
{
  return world.store.text("swx", index, "status") == "offline";
}

// Has one switch of the pair act as master and the other one not, whatever their roles are.
void haveAct(World &world, unsigned controller, unsigned other)
{
  world.store.setText("systemGlobals", 0, "cascadeController", controller == 1 ? "this" : "peer");
  world.store.setText("systemGlobals", 0, "masterSwitchEid", eidOf(world, controller));
  world.store.setText("swx", controller, "mode", "master");
  world.store.setText("swx", other, "mode", "slave");
}

// Gives the control to one switch of the pair and makes the other one its backup.
void giveControl(World &world, unsigned controller, unsigned backup)
{
  haveAct(world, controller, backup);
  setRole(world, controller, "controller");
  setRole(world, backup, isOffline(world, backup) ? "not_present" : "backup");
}

void dissolvePair(World &world)
{
  const unsigned peer = peerIndex(world);
  world.store.setText("systemGlobals", 0, "peerControllerSwitchEid", "");
  world.store.setText("systemGlobals", 0, "cascadeController", "this");
  if (peer) {
    setRole(world, peer, "slave");
    world.store.setText("swx", peer, "mode", "slave");
  }
}

void joinPair(World &world, unsigned peer, unsigned controller)
{
  world.store.setText("systemGlobals", 0, "peerControllerSwitchEid", eidOf(world, peer));
  giveControl(world, controller, controller == 1 ? peer : 1);
}

void becomeMaster(World &world)
{
  world.store.setText("swx", 1, "mode", "master");
  setRole(world, 1, "controller");
  world.store.setText("systemGlobals", 0, "masterSwitchEid", eidOf(world, 1));
}

void followNeighbour(World &world)
{
  world.store.setText("swx", 1, "mode", "slave");
  setRole(world, 1, "slave");
  if (!world.store.exists("swx", kNeighbour))
    return;
  world.store.setText("swx", kNeighbour, "mode", "master");
  setRole(world, kNeighbour, "controller");
  world.store.setText("systemGlobals", 0, "masterSwitchEid", eidOf(world, kNeighbour));
}

} // namespace

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
  setRole(world, 1, master ? "controller" : "slave");
  const std::string own = eidOf(world, 1);
  if (master)
    world.store.setText("systemGlobals", 0, "masterSwitchEid", own);
  else if (world.store.text("systemGlobals", 0, "masterSwitchEid") == own)
    // Nobody is their own slave: which master it has, nobody has said.
    world.store.setText("systemGlobals", 0, "masterSwitchEid", "");
}

Problem linkPeer(World &world, unsigned index)
{
  const bool isCandidate = index != 1 && world.store.text("swx", index, "mode") == "slave" &&
                           world.store.text("swx", index, "usage") == "usable";
  if (roleOf(world, 1) != "controller" || !isCandidate || !peerEid(world).empty())
    return kInvalidCascadeChange;
  if (!isReady(world, index))
    return kBackupNotReady;
  world.store.setText("systemGlobals", 0, "peerControllerSwitchEid", eidOf(world, index));
  // The peer takes over the configuration before it can be a backup.
  takeLater(world, Step::BecomeBackup, kChangeTime, eidOf(world, index));
  return kOk;
}

Problem unlinkPeer(World &world)
{
  const unsigned peer = peerIndex(world);
  if (peerEid(world).empty() || peerHasControl(world))
    return kInvalidCascadeChange;
  if (peer && isOffline(world, peer))
    return kDeleteOfflinePeer;
  dissolvePair(world);
  return kOk;
}

Problem switchRoles(World &world)
{
  const unsigned peer = peerIndex(world);
  if (!peer)
    return kInvalidCascadeChange;
  // Who is "backup" becomes the controller; of a peer that acts, that makes a controller by its role as well.
  const unsigned backup = roleOf(world, 1) == "backup" ? 1 : peer;
  if (!isReady(world, backup) || roleOf(world, backup) != "backup")
    return kBackupNotReady;
  takeLater(world, Step::TakeControl, kChangeTime, eidOf(world, backup));
  return kOk;
}

Problem promotePeer(World &world)
{
  const unsigned peer = peerIndex(world);
  if (!peerHasControl(world) || !peer)
    return kInvalidCascadeChange;
  // The configuration comes from the one that acts. If that is lost, it is replaced in any case.
  if (isOffline(world, peer))
    return kSwxNotOnline;
  takeLater(world, Step::TakeControl, kChangeTime, eidOf(world, 1));
  return kOk;
}

Problem failOver(World &world)
{
  const unsigned peer = peerIndex(world);
  if (!peer || peerHasControl(world))
    return kInvalidCascadeChange;
  if (!isReady(world, peer) || roleOf(world, peer) != "backup")
    return kBackupNotReady;
  haveAct(world, peer, 1);
  return kOk;
}

void noteSwitchLost(World &world, unsigned swxIndex)
{
  if (swxIndex != peerIndex(world))
    return;
  if (peerHasControl(world))
    takeLater(world, Step::ReplacePeer, kPatience, eidOf(world, swxIndex));
  else
    setRole(world, swxIndex, "not_present");
}

void noteSwitchBack(World &world, unsigned swxIndex)
{
  if (swxIndex == peerIndex(world) && roleOf(world, swxIndex) == "not_present")
    takeLater(world, Step::BecomeBackup, kChangeTime, eidOf(world, swxIndex));
}

void becomeBackup(World &world, const std::string &eid)
{
  const unsigned peer = peerIndex(world);
  if (peer && peerEid(world) == eid && !peerHasControl(world))
    setRole(world, peer, isOffline(world, peer) ? "not_present" : "backup");
}

void takeControl(World &world, const std::string &eid)
{
  const unsigned peer = peerIndex(world);
  const unsigned controller = world.store.findText("swx", "eid", eid);
  if (peer && (controller == 1 || controller == peer))
    giveControl(world, controller, controller == 1 ? peer : 1);
}

void replacePeer(World &world, const std::string &eid)
{
  const unsigned peer = peerIndex(world);
  if (peer && peerEid(world) == eid && peerHasControl(world) && isOffline(world, peer))
    giveControl(world, 1, peer);
}

void assumeRole(World &world, const std::string &word)
{
  dissolvePair(world);
  if (world.store.exists("swx", kNeighbour)) {
    world.store.setText("swx", kNeighbour, "mode", "slave");
    setRole(world, kNeighbour, "slave");
  }
  if (word == "slave" || word == "managed-slave")
    followNeighbour(world);
  else
    becomeMaster(world);
  if (word == "backup" && world.store.exists("swx", kNeighbour))
    joinPair(world, kNeighbour, kNeighbour);
  if (word == "managed" || word == "managed-slave")
    beManaged(world);
  else
    leaveManagement(world);
}

} // namespace zelsim
