// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_STORY_H_
#define ZEL_SIM_LIFE_STORY_H_

#include "life/World.h"

#include <map>
#include <string>
#include <utility>

namespace zelsim
{

/// What the life keeps for itself; nothing of it has to outlive the process.
struct Story {
  /// How the next update of a device is to fail: a word of "upgradeStatus", by resource and index.
  std::map<std::pair<std::string, unsigned>, std::string> failures;
  /// The activity under way, or 0.
  Clock::Id activity = 0;
};

/// Makes more or less happen from now on; 0 stops the story. See Settings::liveliness.
void setLiveliness(World &world, unsigned liveliness);

/// One thing that happens by itself, drawn from the world's random numbers.
void happen(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_STORY_H_
