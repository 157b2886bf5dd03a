// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_EVENTS_H_
#define ZEL_SIM_LIFE_EVENTS_H_

#include "life/World.h"

#include <cstddef>

namespace zelsim
{

/// A number from 0 up to, but not including, `range`, which is above 0. The same on every platform.
std::size_t drawn(World &world, std::size_t range);

/// A fault that a switch reports and that goes away after a while.
void haveFault(World &world);

/// Something that a device has to say.
void haveReport(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_EVENTS_H_
