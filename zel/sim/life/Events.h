// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_EVENTS_H_
#define ZEL_SIM_LIFE_EVENTS_H_

#include "life/World.h"

#include <cstddef>
#include <string>

namespace zelsim
{

/// A number from 0 up to, but not including, `range`, which is above 0. The same on every platform.
std::size_t drawn(World &world, std::size_t range);

/// A fault that a switch reports and that goes away after a while.
void haveFault(World &world);

/// Something that a device has to say.
void haveReport(World &world);

/// A fault of hardware is over, as a step (Steps.h).
void endFault(World &world, const std::string &about);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_EVENTS_H_
