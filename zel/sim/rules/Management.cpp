// SPDX-License-Identifier: MIT
#include "rules/Management.h"

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kPassageTime = 5000;

// The words that are only passed through, and what comes behind them.
struct Passage {
  const char *from;
  const char *to;
};

constexpr Passage kPassages[] = {
    {"enrolling", "managed"}, {"managed", "verified"}, {"unenrolling", "non_managed"}};

void setLinks(World &world, bool up)
{
  const char *word = up ? "up" : "down";
  for (const char *parameter : {"commStatusRestServerPrimary", "commStatusRestClientPrimary"})
    world.store.setText("systemGlobals", 0, parameter, word);
  world.store.setText("systemGlobals", 0, "currentManager", up ? "primary" : "none");
  world.store.setText("systemGlobals", 0, "preferredManager", up ? "primary" : "none");
}

void pass(World &world, const Passage &passage)
{
  world.clock.after(kPassageTime, [&world, passage] {
    if (world.store.text("systemGlobals", 0, "managedSetting") != passage.from)
      return;
    world.store.setText("systemGlobals", 0, "managedSetting", passage.to);
    followManagedSetting(world);
  });
}

} // namespace

void enroll(World &world, const std::string &managerAddress)
{
  world.store.setText("systemGlobals", 0, "managerIpAddress", managerAddress);
  world.store.setText("systemGlobals", 0, "managedSetting", "enrolling");
  followManagedSetting(world);
}

void followManagedSetting(World &world)
{
  const std::string setting = world.store.text("systemGlobals", 0, "managedSetting");
  setLinks(world, setting == "managed" || setting == "verified");
  if (setting == "non_managed") {
    world.store.setText("systemGlobals", 0, "managerIpAddress", "");
    world.store.setText("systemGlobals", 0, "auxiliaryManagerIpAddress", "");
  }
  for (const Passage &passage : kPassages)
    if (setting == passage.from)
      pass(world, passage);
}

} // namespace zelsim
