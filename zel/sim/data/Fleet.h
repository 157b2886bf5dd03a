// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_FLEET_H_
#define ZEL_SIM_DATA_FLEET_H_

#include "life/World.h"

namespace zelsim
{

/// Parts of makeFleet() that a restore of factory defaults needs again.

/// Makes the accounts; with `onlyFirst`, just the administrator whose password is not set.
void makeAccounts(World &world, bool onlyFirst);

/// Gives a switch its addresses, as if assigned by the network.
void assignAddresses(World &world, unsigned swxIndex);

} // namespace zelsim

#endif // ZEL_SIM_DATA_FLEET_H_
