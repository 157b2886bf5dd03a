// SPDX-License-Identifier: MIT
#include "control/SessionCommands.h"

#include "control/Names.h"
#include "rules/ErrorText.h"
#include "rules/Sessions.h"

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

// The record of a resource that a word names; 0 with the reason in `wrong` if there is none.
unsigned recordOf(const World &world, const char *resource, const std::string &word, std::string &wrong)
{
  unsigned index = 0;
  return findRecord(world, *findResource(resource), word, index, wrong) ? index : 0;
}

Outcome refused(const Problem &problem)
{
  return {true, "the switch refuses it: " + describeProblem(problem)};
}

Outcome login(World &world, const Words &words)
{
  std::string wrong;
  const unsigned user = recordOf(world, "user", words[0], wrong);
  const unsigned rx = user ? recordOf(world, "rx", words[1], wrong) : 0;
  if (!rx)
    return {true, wrong};
  if (const Problem problem = mayLogIn(world, user, rx))
    return refused(problem);
  return logIn(world, user, rx, false) ? Outcome{} : refused(kCapacityReached);
}

Outcome logout(World &world, const Words &words)
{
  std::string wrong;
  const unsigned rx = recordOf(world, "rx", words[0], wrong);
  if (!rx)
    return {true, wrong};
  const unsigned session = world.store.findNumber("userSession", "rxIndex", rx);
  if (!session)
    return {true, "nobody is logged in there"};
  endUserSession(world, session, Ending::Disconnected);
  world.store.remove("userSession", session);
  return {};
}

Outcome connectDevices(World &world, const Words &words)
{
  const std::string mode = words.size() < 3 || words[2] == "shared" ? "share_mode"
                           : words[2] == "private"                  ? "private_mode"
                                                                    : words[2];
  if (mode != "share_mode" && mode != "private_mode")
    return {true, "\"" + words[2] + "\" is neither shared nor private"};
  std::string wrong;
  const unsigned rx = recordOf(world, "rx", words[0], wrong);
  const unsigned tx = rx ? recordOf(world, "tx", words[1], wrong) : 0;
  if (!tx)
    return {true, wrong};
  if (const Problem problem = mayConnect(world, rx, tx, mode))
    return refused(problem);
  return connect(world, rx, tx, mode) ? Outcome{} : refused(kCapacityReached);
}

Outcome disconnectDevice(World &world, const Words &words)
{
  std::string wrong;
  const unsigned rx = recordOf(world, "rx", words[0], wrong);
  if (!rx)
    return {true, wrong};
  const unsigned connection = world.store.findNumber("connection", "rxIndex", rx);
  if (!connection)
    return {true, "it is not connected"};
  disconnect(world, connection, Ending::Disconnected);
  return {};
}

} // namespace

void addSessionCommands(Commands &commands)
{
  commands.add("login", "USER RX", "log a user in at a receiver", 2, 2, login);
  commands.add("logout", "RX", "log out who is at a receiver", 1, 1, logout);
  commands.add("connect", "RX TX [shared|private]", "connect a receiver, for who is logged in at it", 2, 3,
               connectDevices);
  commands.add("disconnect", "RX", "disconnect a receiver", 1, 1, disconnectDevice);
}

} // namespace zelsim
