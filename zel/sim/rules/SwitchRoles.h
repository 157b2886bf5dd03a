// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SWITCH_ROLES_H_
#define ZEL_SIM_RULES_SWITCH_ROLES_H_

#include "life/World.h"

namespace zelsim
{

/// After a restart this switch plays the part in the cascade that its "mode" says, as far as it isn't one
/// of a pair of controllers.
void takeUpRole(World &world);

/// The EID of the peer in a pair of controllers; empty without one.
std::string peerEid(const World &world);

/// The switch index of the peer, or 0.
unsigned peerIndex(const World &world);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SWITCH_ROLES_H_
