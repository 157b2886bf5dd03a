// SPDX-License-Identifier: MIT
#include "rules/GoDark.h"

#include "data/Faults.h"

namespace zelsim
{

namespace
{

void darken(Faults &faults)
{
  faults.drop = true;
  faults.dark = true;
  ++faults.restarts;
}

} // namespace

void goDark(World &world, Clock::Milliseconds delay, Clock::Milliseconds duration)
{
  if (!world.faults)
    return;
  if (delay > 0)
    world.clock.after(delay, [&world] { darken(*world.faults); });
  else
    darken(*world.faults);
  world.clock.after(duration, [&world] { world.faults->dark = false; });
}

} // namespace zelsim
