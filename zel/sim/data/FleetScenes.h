// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_DATA_FLEET_SCENES_H_
#define ZEL_SIM_DATA_FLEET_SCENES_H_

#include "life/World.h"

#include <string>
#include <vector>

namespace zelsim
{

/// What makes a new fleet look lived in, so that every page has something to show: places, restricted modes,
/// devices that are off or failed to update, older firmware, people with habits of their own.

/// Furnishes the small lab, device by device.
void furnishLab(World &world);

/// Furnishes a large fleet: a few in a hundred devices are something other than ready and up to date.
void furnishFleet(World &world);

/// Gives the people of a fleet favourites, keys of their own and the rights to what they use.
void furnishPeople(World &world);

} // namespace zelsim

#endif // ZEL_SIM_DATA_FLEET_SCENES_H_
