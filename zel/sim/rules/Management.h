// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_MANAGEMENT_H_
#define ZEL_SIM_RULES_MANAGEMENT_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// Sets off on the way into management by an external manager, at "enrolling". The further words follow by
/// themselves, five seconds apart: "managed", then "verified". Refused while the switch is managed already
/// (1106), and for what is neither an address nor a name of a host (17).
Problem enroll(World &world, const std::string &managerAddress);

/// Arrives at "verified" at once, with a manager's address if there is none. Leaves management at once.
void beManaged(World &world);
void leaveManagement(World &world);

/// Gives the manager an auxiliary one, both sides of whose link are up. Refused like enroll(), and while the
/// switch isn't managed.
Problem addAuxiliaryManager(World &world, const std::string &address);

/// Takes a side of a link to a manager down, or up again. `side` is a word of kLinkSides. With the link to
/// the primary manager down altogether, the auxiliary one is the current one.
Problem setLinkSide(World &world, const std::string &side, bool up);
extern const char kLinkSides[];

/// Brings what belongs to the present "managedSetting" in line with it, and goes on from a word that is only
/// passed through. For every change of it.
void followManagedSetting(World &world);
/// The latter alone, for every start.
void resumeManagement(World &world);

} // namespace zelsim

#endif // ZEL_SIM_RULES_MANAGEMENT_H_
