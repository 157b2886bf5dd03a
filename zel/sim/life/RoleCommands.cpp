// SPDX-License-Identifier: MIT
// Commands about the part that this switch plays: in the cascade, and under a manager.
#include "control/Commands.h"
#include "control/Names.h"
#include "data/Catalogue.h"
#include "rules/Management.h"
#include "rules/SwitchRoles.h"

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

Outcome outcomeOf(const Problem &problem, const char *refusal)
{
  return problem ? Outcome{true, std::string(refusal) + " (error " + std::to_string(problem.number) + ")"}
                 : Outcome{};
}

Outcome link(World &world, const Words &words)
{
  Device swx = {&kSwitches, 0};
  std::string wrong;
  if (!findDevice(world, "swx", words.size() > 1 ? words[1] : "2", swx, wrong))
    return {true, wrong};
  return outcomeOf(linkPeer(world, swx.index),
                   "only a ready slave can be linked, to a controller without a peer");
}

Outcome cascade(World &world, const Words &words)
{
  if (words[0] == "link")
    return link(world, words);
  if (words[0] == "unlink")
    return outcomeOf(unlinkPeer(world), "there is no peer on line that is linked and has no control");
  if (words[0] == "switch")
    return outcomeOf(switchRoles(world), "there is no linked backup that is ready");
  if (words[0] == "failover")
    return outcomeOf(failOver(world), "there is no linked backup that is ready");
  if (words[0] == "promote")
    return outcomeOf(promotePeer(world), "no peer that is on line has control");
  if (words[0] != "back")
    return {true, "\"" + words[0] + "\" is none of link, unlink, switch, failover, promote, back"};
  assumeRole(world, "master");
  return {};
}

constexpr char kNotManaged[] = "only a managed switch has such a link";

Outcome manager(World &world, const Words &words)
{
  const std::string argument = words.size() > 1 ? words[1] : std::string();
  if (words[0] == "enroll")
    return outcomeOf(enroll(world, argument.empty() ? "10.20.30.4" : argument),
                     "only a switch that isn't managed enrols, with an address");
  if (words[0] == "auxiliary")
    return outcomeOf(addAuxiliaryManager(world, argument.empty() ? "10.20.30.6" : argument),
                     "only a managed switch has an auxiliary manager, with an address");
  if (words[0] == "up" || words[0] == "down") {
    const std::string side = argument.empty() ? "primary" : argument;
    if (!hasWord(kLinkSides, side))
      return {true, "\"" + side + "\" is none of " + kLinkSides};
    return outcomeOf(setLinkSide(world, side, words[0] == "up"), kNotManaged);
  }
  if (words[0] != "verify" && words[0] != "leave")
    return {true, "\"" + words[0] + "\" is none of enroll, verify, auxiliary, up, down, leave"};
  words[0] == "verify" ? beManaged(world) : leaveManagement(world);
  return {};
}

Outcome role(World &world, const Words &words)
{
  if (!hasWord(kRoleWords, words[0]))
    return {true, "\"" + words[0] + "\" is none of " + kRoleWords};
  assumeRole(world, words[0]);
  return {};
}

} // namespace

void addRoleCommands(Commands &commands)
{
  commands.add("role", "WORD", "put this switch where it is a master, slave, backup, managed, managed-slave",
               1, 1, role);
  commands.add("cascade", "link [SWX]|unlink|switch|failover|promote|back",
               "what befalls a pair of switches; failover: the peer acts for this one", 1, 2, cascade);
  commands.add("manager", "enroll|auxiliary [ADDRESS]|verify|up|down [SIDE]|leave",
               "management from outside; sides such as primary or auxiliary-client", 1, 2, manager);
}

} // namespace zelsim
