// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_TIME_SERVICE_H_
#define ZEL_SIM_RULES_TIME_SERVICE_H_

#include "life/World.h"

namespace zelsim
{

/// Sets "ntpStatus" of a switch to what its settings lead to: at once if it is plain, else to "pending" and
/// to the outcome three seconds later. A server name that ends in ".invalid" never answers, and an address
/// of 192.0.2.0/24 can't be reached.
void synchronizeTime(World &world, unsigned swxIndex);

/// The outcome, as a step (Steps.h).
void finishSynchronization(World &world, unsigned swxIndex);

} // namespace zelsim

#endif // ZEL_SIM_RULES_TIME_SERVICE_H_
