// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_SERVER_COMMANDS_H_
#define ZEL_SIM_CONTROL_SERVER_COMMANDS_H_

#include "control/Commands.h"
#include "data/Faults.h"

namespace zelsim
{

/// get, set, count, describe, the faults, jump and quit. `faults` outlives the commands.
void addServerCommands(Commands &commands, Faults &faults);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_SERVER_COMMANDS_H_
