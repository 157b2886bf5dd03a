// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_FLEET_HISTORY_H_
#define ZEL_SIM_DATA_FLEET_HISTORY_H_

#include "life/World.h"

namespace zelsim
{

/// What went on before a new switch is looked at for the first time: people at their desks, some of them
/// connected, and a day of alerts, the last of which nobody has acknowledged.
void makeHistory(World &world);

} // namespace zelsim

#endif // ZEL_SIM_DATA_FLEET_HISTORY_H_
