// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_MANAGEMENT_H_
#define ZEL_SIM_RULES_MANAGEMENT_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// Sets off on the way into management by an external manager, at "enrolling". The further words follow by
/// themselves, five seconds apart: "managed", then "verified".
void enroll(World &world, const std::string &managerAddress);

/// Brings what belongs to the present "managedSetting" in line with it, and goes on from a word that is only
/// passed through. For every change of it and for every start.
void followManagedSetting(World &world);

} // namespace zelsim

#endif // ZEL_SIM_RULES_MANAGEMENT_H_
