// SPDX-License-Identifier: MIT
// Sends one control command to a running zelsim and shows what came of it.
#include "control/Channel.h"
#include "control/ServerCommands.h"

#include <cstdio>
#include <cstdlib>
#include <getopt.h>
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
              "  zelctl table rx\n"
              "  zelctl get rx \"Desk 3 Traffic\" status\n"
              "  zelctl login rokafor \"Crisis Room 1\" && zelctl connect \"Crisis Room 1\" \"Map Server\"\n"
              "  zelctl offline rx 2 30\n"
              "  zelctl fail SET rx/name 11 name      the next change of a receiver's name is refused\n"
              "  zelctl fail GET swx any 4 always && zelctl fail off\n"
              "  zelctl delay SET edidControl 2000 5  five pulls or pushes take two seconds each\n"
              "  zelctl slow 500 && zelctl slow off\n"
              "  zelctl jump 3600\n"
              "\n"
              "A record is named by its index, its EID or its name.\n"
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
  const option options[] = {
      {"control", required_argument, nullptr, 'c'}, {"help", no_argument, nullptr, 'h'}, {}};
  std::string path = defaultControlPath();
  // The "+": what follows the command belongs to it, whatever it begins with.
  for (int found = 0; (found = ::getopt_long(argc, argv, "+", options, nullptr)) != -1;) {
    if (found == '?')
      return 1;
    if (found == 'h') {
      printHelp();
      return 0;
    }
    path = optarg;
  }
  const std::vector<std::string> words(argv + optind, argv + argc);
  if (words.empty() || words[0] == "help") {
    printHelp();
    return words.empty() ? 1 : 0;
  }
  zelsim::Outcome outcome;
  if (!zelsim::sendCommand(path, words, outcome)) {
    std::fprintf(stderr, "zelctl: no store answers at %s\n", path.c_str());
    return 2;
  }
  if (outcome.failed)
    std::fprintf(stderr, "zelctl: %s\n", outcome.text.c_str());
  else
    std::fputs(outcome.text.c_str(), stdout);
  return outcome.failed ? 1 : 0;
}
