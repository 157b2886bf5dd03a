// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_GO_DARK_H_
#define ZEL_SIM_RULES_GO_DARK_H_

#include "life/World.h"

namespace zelsim
{

/// The switch restarts: a second from now, when the answer to the command is out, all clients are dropped,
/// and nobody can connect until `duration` from now has passed.
void goDark(World &world, Clock::Milliseconds duration);

} // namespace zelsim

#endif // ZEL_SIM_RULES_GO_DARK_H_
