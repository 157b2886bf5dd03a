// SPDX-License-Identifier: MIT
#include "rules/Management.h"

#include "rules/Form.h"

namespace zelsim
{

const char kLinkSides[] = "primary primary-server primary-client auxiliary auxiliary-server auxiliary-client";

namespace
{

constexpr Clock::Milliseconds kPassageTime = 5000;
constexpr char kUsualManager[] = "10.20.30.4";

// The words that are only passed through, and what comes behind them.
struct Passage {
  const char *from;
  const char *to;
};

constexpr Passage kPassages[] = {
    {"enrolling", "managed"}, {"managed", "verified"}, {"unenrolling", "non_managed"}};

struct Side {
  const char *word;
  const char *link;
  const char *parameter;
};

constexpr Side kSides[] = {
    {"primary-server", "primary", "commStatusRestServerPrimary"},
    {"primary-client", "primary", "commStatusRestClientPrimary"},
    {"auxiliary-server", "auxiliary", "commStatusRestServerAuxiliary"},
    {"auxiliary-client", "auxiliary", "commStatusRestClientAuxiliary"},
};

std::string settingOf(const World &world)
{
  return world.store.text("systemGlobals", 0, "managedSetting");
}

bool isManaged(const World &world)
{
  const std::string setting = settingOf(world);
  return setting == "managed" || setting == "verified";
}

bool isUp(const World &world, const char *link)
{
  for (const Side &side : kSides)
    if (std::string(side.link) == link && world.store.text("systemGlobals", 0, side.parameter) == "up")
      return true;
  return false;
}

void setLink(World &world, const std::string &word, bool up)
{
  for (const Side &side : kSides)
    if (word == side.word || word == side.link)
      world.store.setText("systemGlobals", 0, side.parameter, up ? "up" : "down");
}

// Of the managers that answer the primary one is the current one.
void chooseManager(World &world)
{
  const char *current = isUp(world, "primary") ? "primary" : isUp(world, "auxiliary") ? "auxiliary" : "none";
  world.store.setText("systemGlobals", 0, "currentManager", current);
  world.store.setText("systemGlobals", 0, "preferredManager", isManaged(world) ? "primary" : "none");
}

bool isAddress(const std::string &address)
{
  return !address.empty() && hasForm(address, Form::HostOrEmpty);
}

void pass(World &world, const Passage &passage)
{
  world.clock.after(kPassageTime, [&world, passage] {
    if (settingOf(world) != passage.from)
      return;
    world.store.setText("systemGlobals", 0, "managedSetting", passage.to);
    followManagedSetting(world);
  });
}

void setSetting(World &world, const char *setting)
{
  world.store.setText("systemGlobals", 0, "managedSetting", setting);
  followManagedSetting(world);
}

} // namespace

Problem enroll(World &world, const std::string &managerAddress)
{
  if (settingOf(world) != "non_managed")
    return kNotAllowed;
  if (!isAddress(managerAddress))
    return {kInvalidFormat, "managerIpAddress"};
  world.store.setText("systemGlobals", 0, "managerIpAddress", managerAddress);
  setSetting(world, "enrolling");
  return kOk;
}

void beManaged(World &world)
{
  if (world.store.text("systemGlobals", 0, "managerIpAddress").empty())
    world.store.setText("systemGlobals", 0, "managerIpAddress", kUsualManager);
  setSetting(world, "verified");
}

void leaveManagement(World &world)
{
  setSetting(world, "non_managed");
}

Problem addAuxiliaryManager(World &world, const std::string &address)
{
  if (!isManaged(world))
    return kNotAllowed;
  if (!isAddress(address))
    return {kInvalidFormat, "auxiliaryManagerIpAddress"};
  world.store.setText("systemGlobals", 0, "auxiliaryManagerIpAddress", address);
  setLink(world, "auxiliary", true);
  chooseManager(world);
  return kOk;
}

Problem setLinkSide(World &world, const std::string &side, bool up)
{
  const bool hasAuxiliary = !world.store.text("systemGlobals", 0, "auxiliaryManagerIpAddress").empty();
  if (!isManaged(world) || (side.compare(0, 9, "auxiliary") == 0 && !hasAuxiliary))
    return kNotAllowed;
  setLink(world, side, up);
  chooseManager(world);
  return kOk;
}

void followManagedSetting(World &world)
{
  const std::string setting = settingOf(world);
  setLink(world, "primary", isManaged(world));
  setLink(world, "auxiliary",
          isManaged(world) && !world.store.text("systemGlobals", 0, "auxiliaryManagerIpAddress").empty());
  chooseManager(world);
  if (setting == "non_managed") {
    world.store.setText("systemGlobals", 0, "managerIpAddress", "");
    world.store.setText("systemGlobals", 0, "auxiliaryManagerIpAddress", "");
  }
  resumeManagement(world);
}

void resumeManagement(World &world)
{
  for (const Passage &passage : kPassages)
    if (settingOf(world) == passage.from)
      pass(world, passage);
}

} // namespace zelsim
