// SPDX-License-Identifier: MIT
#include "rules/GoDark.h"

#include "server/Faults.h"

namespace zelsim
{

void goDark(World &world, Clock::Milliseconds duration)
{
  if (!world.faults)
    return;
  world.clock.after(1000, [&world] {
    world.faults->drop = true;
    world.faults->refuse = true;
  });
  world.clock.after(duration, [&world] { world.faults->refuse = false; });
}

} // namespace zelsim
