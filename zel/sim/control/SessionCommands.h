// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_CONTROL_SESSION_COMMANDS_H_
#define ZEL_SIM_CONTROL_SESSION_COMMANDS_H_

#include "control/Commands.h"

namespace zelsim
{

/// login, logout, connect and disconnect: what people at receivers do, by the switch's rules.
void addSessionCommands(Commands &commands);

} // namespace zelsim

#endif // ZEL_SIM_CONTROL_SESSION_COMMANDS_H_
