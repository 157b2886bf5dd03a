// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_TOPOLOGY_H_
#define ZEL_SIM_RULES_TOPOLOGY_H_

#include "life/World.h"

namespace zelsim
{

/// Whether one more session between the two devices finds its way through the switches: both hang on
/// usable places of switches that are ready, and each slave switch on the way has a link to spare.
Problem pathBetween(const World &world, unsigned rxIndex, unsigned txIndex);

/// The links of a slave switch that sessions to other switches occupy.
unsigned linksInUse(const World &world, unsigned swxIndex);

} // namespace zelsim

#endif // ZEL_SIM_RULES_TOPOLOGY_H_
