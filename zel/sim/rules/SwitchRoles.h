// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SWITCH_ROLES_H_
#define ZEL_SIM_RULES_SWITCH_ROLES_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// The parts that switches play in the cascade. Two of them may be a pair: one has control, the other is its
/// backup. These are the states that this switch can be in with its peer:
///
///   linked        this switch has control; roles "controller" here, "backup" there ("not_present" while the
///                 peer is off line)
///   switched      the control was given to the peer: roles "backup" here, "controller" there
///   failed over   this switch was lost and is back: the peer acts for it, mode "master", and is still its
///                 "backup"; this one is "controller" by its role, and a "slave" as long as the peer acts
///
/// Promotion leads from either of the latter back to "linked", a forced switch from "failed over" to
/// "switched". A peer that has control and is off line for ten seconds is replaced by this switch.

/// After a restart this switch plays the part in the cascade that its "mode" says, as far as it isn't one
/// of a pair of controllers.
void takeUpRole(World &world);

/// The EID of the peer in a pair of controllers; empty without one.
std::string peerEid(const World &world);

/// The switch index of the peer, or 0.
unsigned peerIndex(const World &world);

/// The four actions of "cascadeRoleAction". What they lead to is there two seconds later.
Problem linkPeer(World &world, unsigned swxIndex);
Problem unlinkPeer(World &world);
Problem switchRoles(World &world);
Problem promotePeer(World &world);

/// The peer fails over: as if this switch had been lost for a while.
Problem failOver(World &world);

/// For the life: a switch has gone off line or has come back.
void noteSwitchLost(World &world, unsigned swxIndex);
void noteSwitchBack(World &world, unsigned swxIndex);

/// Steps (Steps.h), about a switch by its EID.
void becomeBackup(World &world, const std::string &eid);
void takeControl(World &world, const std::string &eid);
void replacePeer(World &world, const std::string &eid);

/// Puts this switch at once where a word of kRoleWords says: a master, a slave of switch 2, the backup of
/// it, a master or a slave under a manager.
void assumeRole(World &world, const std::string &word);
extern const char kRoleWords[];

} // namespace zelsim

#endif // ZEL_SIM_RULES_SWITCH_ROLES_H_
