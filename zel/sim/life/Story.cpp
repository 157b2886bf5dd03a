// SPDX-License-Identifier: MIT
#include "life/Story.h"

#include "data/IconFiles.h"
#include "life/DeviceLife.h"
#include "life/Events.h"
#include "life/Steps.h"
#include "life/UpgradeLife.h"
#include "rules/AdminSessions.h"
#include "rules/Management.h"
#include "rules/Ports.h"

#include <algorithm>
#include <memory>

namespace zelsim
{

namespace
{

// At liveliness 1 something happens so often, for every so many receivers.
constexpr Clock::Milliseconds kCalmPeriod = 15000;
constexpr std::size_t kReceiversPerEvent = 512;

void actAll(World &world)
{
  const std::size_t events = 1 + world.store.count("rx") / kReceiversPerEvent;
  for (std::size_t i = 0; i < events; ++i)
    happen(world);
}

} // namespace

void setLiveliness(World &world, unsigned liveliness)
{
  world.settings.liveliness = liveliness;
  world.clock.cancel(world.story->activity);
  world.story->activity = 0;
  if (liveliness > 0)
    world.story->activity = world.clock.every(std::max<Clock::Milliseconds>(1, kCalmPeriod / liveliness),
                                              [&world] { actAll(world); });
}

void startStory(World &world)
{
  const auto story = std::make_shared<Story>();
  world.story = story.get();
  // Whoever keeps an action keeps the story: it goes with the clock.
  world.clock.every(24 * 3600 * 1000, [story] {});
  writeMissingIcons(world.settings.iconRoot.empty() ? world.settings.settingsRoot + "/icons"
                                                    : world.settings.iconRoot);
  makePortStatus(world);
  resumeDevices(world);
  resumeUpdates(world);
  resumeSteps(world);
  resumeManagement(world);
  resumeAdminSessions(world);
  world.clientCame = [&world](std::uint64_t client, std::int64_t process) {
    noteClient(world, client, process);
  };
  world.clientGone = [&world](std::uint64_t client) { noteClientGone(world, client); };
  setLiveliness(world, world.settings.liveliness);
}

} // namespace zelsim
