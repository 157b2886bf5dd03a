// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_JUMP_H_
#define ZEL_SIM_LIFE_JUMP_H_

#include "life/World.h"

namespace zelsim
{

/// Has all happen that would in so much time. The switch's clock isn't moved: whoever watches it has one of
/// their own, and durations come of both. The past is moved instead: every date that is kept lies so much
/// further back, as if the time had gone by.
void jumpAhead(World &world, Clock::Milliseconds distance);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_JUMP_H_
