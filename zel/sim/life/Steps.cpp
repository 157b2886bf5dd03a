// SPDX-License-Identifier: MIT
#include "life/Steps.h"

#include "life/Events.h"
#include "life/UpgradeLife.h"
#include "rules/Rediscovery.h"
#include "rules/SwitchRoles.h"
#include "rules/TimeService.h"

#include <algorithm>
#include <cstdlib>

namespace zelsim
{

namespace
{

constexpr char kPending[] = "pendingStep";
// No step waits longer. One that seems to was made under a clock that has been set back since.
constexpr Clock::Milliseconds kLongestWait = 10 * 60 * 1000;

struct Kind {
  Step step;
  const char *name;
  void (*take)(World &world, const std::string &about);
};

const Kind kKinds[] = {
    {Step::BecomeBackup, "become_backup", becomeBackup},
    {Step::TakeControl, "take_control", takeControl},
    {Step::ReplacePeer, "replace_peer", replacePeer},
    {Step::SynchronizeTime, "synchronize_time",
     [](World &world, const std::string &about) {
       finishSynchronization(world, static_cast<unsigned>(std::strtoul(about.c_str(), nullptr, 10)));
     }},
    {Step::RestartUpdated, "restart_updated", restartUpdated},
    {Step::Announce, "announce", announce},
    {Step::EndFault, "end_fault", endFault},
};

void takeIfDue(World &world, unsigned index)
{
  // The record may be gone, since its request was refused, and its number be another step's.
  if (!world.store.exists(kPending, index) || world.store.number(kPending, index, "at") > world.clock.nowMs())
    return;
  const std::string name = world.store.text(kPending, index, "step");
  const std::string about = world.store.text(kPending, index, "about");
  world.store.remove(kPending, index);
  for (const Kind &kind : kKinds)
    if (name == kind.name)
      kind.take(world, about);
}

void schedule(World &world, unsigned index, Clock::Milliseconds delay)
{
  world.clock.after(delay, [&world, index] { takeIfDue(world, index); });
}

} // namespace

void takeLater(World &world, Step step, Clock::Milliseconds delay, const std::string &about)
{
  const unsigned index = world.store.create(kPending);
  for (const Kind &kind : kKinds)
    if (kind.step == step)
      world.store.setText(kPending, index, "step", kind.name);
  world.store.setText(kPending, index, "about", about);
  world.store.setNumber(kPending, index, "at", world.clock.nowMs() + delay);
  schedule(world, index, delay);
}

void resumeSteps(World &world)
{
  for (const unsigned index : world.store.indexes(kPending)) {
    const Clock::Milliseconds rest = std::clamp<Clock::Milliseconds>(
        world.store.number(kPending, index, "at") - world.clock.nowMs(), 0, kLongestWait);
    world.store.setNumber(kPending, index, "at", world.clock.nowMs() + rest);
    schedule(world, index, rest);
  }
}

} // namespace zelsim
