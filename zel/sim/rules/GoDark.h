// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_GO_DARK_H_
#define ZEL_SIM_RULES_GO_DARK_H_

#include "life/World.h"

namespace zelsim
{

/// The switch restarts: after `delay`, which lets the answer to the command out, all clients are dropped,
/// and nobody can connect until `duration` from now has passed. A delay of 0 takes effect at once: for a
/// store that is started while its switch restarts.
void goDark(World &world, Clock::Milliseconds delay, Clock::Milliseconds duration);

} // namespace zelsim

#endif // ZEL_SIM_RULES_GO_DARK_H_
