// SPDX-License-Identifier: MIT
#include "rules/TimeService.h"

#include "life/Steps.h"

#include <string>

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kAnswerTime = 3000;

std::string outcomeOf(const std::string &server)
{
  const std::string deaf = ".invalid", unreachable = "192.0.2.";
  if (server.size() >= deaf.size() && server.compare(server.size() - deaf.size(), deaf.size(), deaf) == 0)
    return "server_unresponsive";
  return server.compare(0, unreachable.size(), unreachable) == 0 ? "network_unreachable" : "success";
}

// The first server decides, unless it fails and the second doesn't.
std::string outcome(const World &world, unsigned swxIndex)
{
  const std::string first = world.store.text("swx", swxIndex, "primaryNtpIpAddress");
  const std::string second = world.store.text("swx", swxIndex, "secondaryNtpIpAddress");
  const std::string result = outcomeOf(first.empty() ? second : first);
  return result != "success" && !second.empty() && outcomeOf(second) == "success" ? "success" : result;
}

bool hasServer(const World &world, unsigned swxIndex)
{
  return !world.store.text("swx", swxIndex, "primaryNtpIpAddress").empty() ||
         !world.store.text("swx", swxIndex, "secondaryNtpIpAddress").empty();
}

} // namespace

void synchronizeTime(World &world, unsigned swxIndex)
{
  const auto set = [&world, swxIndex](const std::string &word) {
    world.store.setText("swx", swxIndex, "ntpStatus", word);
  };
  if (!world.store.flag("swx", swxIndex, "ntpEnable"))
    return set("inactive");
  if (!hasServer(world, swxIndex))
    return set("bad_configuration");
  set("pending");
  takeLater(world, Step::SynchronizeTime, kAnswerTime, std::to_string(swxIndex));
}

void finishSynchronization(World &world, unsigned swxIndex)
{
  if (world.store.text("swx", swxIndex, "ntpStatus") == "pending")
    world.store.setText("swx", swxIndex, "ntpStatus", outcome(world, swxIndex));
}

} // namespace zelsim
