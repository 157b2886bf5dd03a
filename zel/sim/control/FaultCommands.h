// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_FAULT_COMMANDS_H_
#define ZEL_SIM_CONTROL_FAULT_COMMANDS_H_

#include "control/Commands.h"
#include "data/Faults.h"

namespace zelsim
{

/// fail, delay, slow, silent, refuse, cut and drop. `faults` outlives the commands.
void addFaultCommands(Commands &commands, Faults &faults);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_FAULT_COMMANDS_H_
