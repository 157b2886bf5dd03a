// SPDX-License-Identifier: MIT
// Sends one control command to a running zelsim and shows what came of it.
#include "control/Channel.h"
#include "control/ServerCommands.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>
namespace
{

void printHelp()
{
  zelsim::Commands commands;
  zelsim::Faults faults;
  zelsim::addServerCommands(commands, faults);
  zelsim::addLifeCommands(commands);
  std::printf("zelctl, the remote control of a running zelsim\n"
              "\n"
              "  zelctl [--control PATH] COMMAND [ARGUMENT...]\n"
              "\n"
              "PATH is the store's control socket; default: the environment's NEVO_STORE_CONTROL, else\n"
              "NEVO_STORE_SOCKET (default /run/nevo/store.sock) with \".control\" behind it.\n"
              "\n"
              "%s"
              "\n"
              "Examples:\n"
              "  zelctl get rx 1 status\n"
              "  zelctl set rx 1 upgradePercent 37\n"
              "  zelctl slow 500 && zelctl slow off\n"
              "  zelctl jump 3600\n"
              "\n"
              "Ends with 0 if the command was carried out, 1 if it was refused, 2 if no store answered.\n",
              commands.help().c_str());
}

std::string defaultControlPath()
{
  if (const char *path = std::getenv("NEVO_STORE_CONTROL"); path && *path)
    return path;
  const char *socket = std::getenv("NEVO_STORE_SOCKET");
  return std::string(socket && *socket ? socket : "/run/nevo/store.sock") + ".control";
}

} // namespace

int main(int argc, char **argv)
{
  int first = 1;
  std::string path = defaultControlPath();
  if (argc > 2 && std::strcmp(argv[1], "--control") == 0) {
    path = argv[2];
    first = 3;
  }
  if (first >= argc || std::strcmp(argv[first], "--help") == 0 || std::strcmp(argv[first], "help") == 0) {
    printHelp();
    return first >= argc ? 1 : 0;
  }
  zelsim::Outcome outcome;
  if (!zelsim::sendCommand(path, std::vector<std::string>(argv + first, argv + argc), outcome)) {
    std::fprintf(stderr, "zelctl: no store answers at %s\n", path.c_str());
    return 2;
  }
  if (outcome.failed)
    std::fprintf(stderr, "zelctl: %s\n", outcome.text.c_str());
  else
    std::fputs(outcome.text.c_str(), stdout);
  return outcome.failed ? 1 : 0;
}
