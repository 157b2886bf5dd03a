// SPDX-License-Identifier: MIT
// The simulated switch as a program: reads its options, opens its database, serves until it is told to end.
#include "control/ServerCommands.h"
#include "data/FleetNames.h"
#include "data/Journal.h"
#include "data/Password.h"
#include "rules/SwitchRoles.h"
#include "server/Server.h"

#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <malloc.h>
#include <string>
#include <vector>

namespace
{

using namespace zelsim;

struct Options {
  Server::Options server;
  Settings settings;
  std::string database = ":memory:";
  std::string role; // empty: what the database says
  unsigned passwordIterations = 0;
  bool accounts = false;
  bool describe = false;
  bool help = false;
};

constexpr const char *kUsage =
    "zelsim, the simulated switch: a store server with devices, rules and a life of its own\n"
    "\n"
    "  --socket PATH        where clients connect (default /run/nevo/store.sock)\n"
    "  --control PATH       where zelctl connects (default: the socket's path and \".control\")\n"
    "  --database PATH      where everything is kept; \":memory:\" (default) forgets it at the end\n"
    "  --fleet N            make N receivers and N transmitters instead of the small lab\n"
    "  --sessions N         have N receivers in KVM sessions, each with a user of its own\n"
    "  --alerts N           have N more alerts in the history, a tenth of them unacknowledged\n"
    "  --role WORD          start as master, slave, backup, managed or managed-slave (default: as it was "
    "left)\n"
    "  --seed N             same seed, same story (default 1)\n"
    "  --liveliness N       0: nothing happens by itself; 1: calm (default); 10: a busy day\n"
    "  --oem NAME           brand whose icon files are used (default nevo)\n"
    "  --settings DIR       where settings archives are written (default: the environment's\n"
    "                       NEVO_SETTINGS_DIR, else /data/settings)\n"
    "  --icons DIR          where icon files are kept (default: \"icons\" in the folder of --settings)\n"
    "  --max-clients N      most connections at once (default 1024)\n"
    "  --password-rounds N  work of a password's hash (default: some 20 ms)\n"
    "  --accounts           print the administrators of a new switch with their passwords, and end\n"
    "  --describe           print all resources with types, limits and defaults, and end\n"
    "  --help               print this, and end\n"
    "\n"
    "Fleet, sessions, alerts and seed shape a new database only. Prints \"ready\" when clients can connect "
    "and\n"
    "\"restarts\" when the switch goes down to come back: whoever supervises the web server ends it with "
    "the\n"
    "switch, and starts it when the switch is ready again.\n";

bool toNumber(const char *text, std::uint64_t most, std::uint64_t &number)
{
  auto [end, error] = std::from_chars(text, text + std::strlen(text), number);
  return error == std::errc() && *end == '\0' && number <= most;
}

// Sets the option `name` to `value`; false if there is no such option or it doesn't take that value.
bool setOption(Options &options, const std::string &name, const char *value)
{
  struct TextOption {
    const char *name;
    std::string &target;
  };
  const TextOption texts[] = {{"--socket", options.server.socket},
                              {"--control", options.server.control},
                              {"--role", options.role},
                              {"--database", options.database},
                              {"--oem", options.settings.oem},
                              {"--icons", options.settings.iconRoot},
                              {"--settings", options.settings.settingsRoot}};
  for (const TextOption &option : texts)
    if (name == option.name) {
      option.target = value;
      return true;
    }
  std::uint64_t number = 0;
  if (name == "--seed")
    return toNumber(value, UINT64_MAX, options.settings.seed);
  struct NumberOption {
    const char *name;
    unsigned &target;
    std::uint64_t most;
  };
  const NumberOption numbers[] = {{"--fleet", options.settings.fleet, 2500},
                                  {"--sessions", options.settings.sessions, 1000},
                                  {"--alerts", options.settings.alerts, 100000},
                                  {"--liveliness", options.settings.liveliness, 100},
                                  {"--max-clients", options.server.maxClients, 100000},
                                  {"--password-rounds", options.passwordIterations, 10000000}};
  for (const NumberOption &option : numbers)
    if (name == option.name && toNumber(value, option.most, number)) {
      option.target = static_cast<unsigned>(number);
      return true;
    }
  return false;
}

// The option that takes no value; null if there is none of that name.
bool *flagOf(Options &options, const std::string &name)
{
  if (name == "--accounts")
    return &options.accounts;
  if (name == "--describe")
    return &options.describe;
  return name == "--help" ? &options.help : nullptr;
}

bool readOptions(int argc, char **argv, Options &options)
{
  for (int i = 1; i < argc; ++i) {
    std::string name = argv[i];
    if (bool *flag = flagOf(options, name)) {
      *flag = true;
      continue;
    }
    if (i + 1 == argc || !setOption(options, name, argv[i + 1])) {
      std::fprintf(stderr, "zelsim: bad option %s%s%s (see --help)\n", name.c_str(), i + 1 < argc ? " " : "",
                   i + 1 < argc ? argv[i + 1] : "");
      return false;
    }
    ++i;
  }
  if (!options.role.empty() && !hasWord(kRoleWords, options.role)) {
    std::fprintf(stderr, "zelsim: bad option --role %s (see --help)\n", options.role.c_str());
    return false;
  }
  if (options.server.socket.empty())
    options.server.socket = "/run/nevo/store.sock";
  if (options.server.control.empty())
    options.server.control = options.server.socket + ".control";
  return true;
}

void printAccounts()
{
  std::size_t count = 0;
  const Account *accounts = fleetAccounts(count);
  for (std::size_t i = 0; i < count; ++i)
    if (accounts[i].administrator && accounts[i].enabled)
      std::printf("%s, password %s%s\n", accounts[i].name, accounts[i].password,
                  accounts[i].passwordIsInitialized ? "" : " (the first login asks for a new one)");
}

int fail(const std::string &problem)
{
  std::fprintf(stderr, "zelsim: %s\n", problem.c_str());
  return 1;
}

int serve(const Options &options)
{
  std::string problem;
  std::unique_ptr<Journal> journal = Journal::open(options.database, problem);
  if (!journal)
    return fail(problem);
  Store store(std::move(journal));
  if (!store.load(problem))
    return fail("database " + options.database + ": " + problem);

  Faults faults;
  World world(options.settings, store);
  world.faults = &faults;
  registerRules(world.rules);
  if (store.wasEmpty())
    makeFleet(world);
  if (!options.role.empty())
    assumeRole(world, options.role);
  startStory(world);
  if (!store.commit(problem) || !store.settle(problem))
    return fail("database " + options.database + ": " + problem);
  ::malloc_trim(0);

  Commands commands;
  addServerCommands(commands, faults);
  addLifeCommands(commands);
  addRoleCommands(commands);
  addStateCommands(commands);
  Server server(world, commands, faults, options.server);
  if (!server.listen(problem))
    return fail(problem);
  return server.run() ? 0 : fail("the server's loop failed");
}

} // namespace

int main(int argc, char **argv)
{
  Options options;
  if (const char *folder = std::getenv("NEVO_SETTINGS_DIR"); folder && *folder)
    options.settings.settingsRoot = folder;
  if (!readOptions(argc, argv, options))
    return 2;
  if (options.help) {
    std::fputs(kUsage, stdout);
    return 0;
  }
  if (options.accounts) {
    printAccounts();
    return 0;
  }
  if (options.describe) {
    std::fputs(describeCatalogue().c_str(), stdout);
    return 0;
  }
  // A full disk or a size limit is an error of a write, not the end of the store.
  std::signal(SIGXFSZ, SIG_IGN);
  std::signal(SIGPIPE, SIG_IGN);
  options.server.tell = [](const char *news) {
    std::puts(news);
    std::fflush(stdout);
  };
  if (options.passwordIterations > 0)
    setPasswordIterations(options.passwordIterations);
  return serve(options);
}
