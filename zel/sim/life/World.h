// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_WORLD_H_
#define ZEL_SIM_LIFE_WORLD_H_

#include "data/Store.h"
#include "life/Clock.h"
#include "rules/Rule.h"

#include <cstdint>
#include <functional>
#include <map>
#include <random>
#include <string>

namespace zelsim
{

struct Faults;
struct Story;

/// How the switch is to be, from the command line.
struct Settings {
  unsigned fleet = 0;                          // receivers, and as many transmitters; 0 is the small lab
  unsigned sessions = 0;                       // KVM sessions, each of a user of its own; 0: a few
  unsigned alerts = 0;                         // alerts of the past beside the usual ones
  std::uint64_t seed = 1;                      // same seed, same story
  unsigned liveliness = 1;                     // 0: nothing happens by itself; 1: calm; 10: a busy day
  std::string oem = "nevo";                    // brand: folder below themes/
  std::string iconRoot;                        // where icon files are kept; empty: settingsRoot/icons
  std::string settingsRoot = "/data/settings"; // where settings archives are written
};

/// A connection of a client.
struct Client {
  std::int64_t process; // that it belongs to
  std::int64_t since;   // in the switch's time
};

/// What rules and life work on. One per process, used on the server's loop only.
struct World {
  Settings settings;
  Store &store;
  Clock clock;
  Rules rules;
  /// For life: the same seed gives the same numbers. Never for secrets.
  std::mt19937_64 random;
  Story *story = nullptr; // what the life keeps for itself; the clock's actions own it
  /// Told by the server of every connection of a client and the process behind it, and of its end.
  std::function<void(std::uint64_t client, std::int64_t process)> clientCame;
  std::function<void(std::uint64_t client)> clientGone;
  std::map<std::uint64_t, Client> clients; // those that are connected
  Faults *faults = nullptr; // the server's, for a switch that restarts; null where there is no server

  World(Settings switchSettings, Store &records)
      : settings(std::move(switchSettings)), store(records), random(settings.seed)
  {
  }
};

/// Fleet.cpp: fills an empty store: switches, devices, accounts, monitor data, settings.
void makeFleet(World &world);

/// Story.cpp: schedules what happens by itself, at every start, behind makeFleet() or the loading of the
/// database. Takes up what a stop interrupted (a device that was booting or updating goes on).
void startStory(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_WORLD_H_
