// SPDX-License-Identifier: MIT
#include "data/FleetHistory.h"

#include "data/FleetNames.h"
#include "rules/Alerts.h"
#include "rules/Device.h"
#include "rules/Sessions.h"

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <set>
#include <string>
#include <vector>

namespace zelsim
{

namespace
{

// A person at a desk since so many minutes; with a transmitter, connected since half of them.
struct Seat {
  unsigned user;
  unsigned rx;
  unsigned tx;
  const char *mode;
  unsigned minutes;
};

constexpr Seat kSeats[] = {
    {4, 1, 0, "", 12},
    {3, 7, 2, "private_mode", 95},
    {5, 3, 7, "share_mode", 211},
    {6, 5, 0, "", 34},
    {7, 8, 6, "share_mode", 1890},
    {7, 9, 6, "share_mode", 1885},
    {10, 13, 4, "share_mode", 7},
};

struct PastAlert {
  AlertKind kind;
  const char *first;
  const char *second;
  unsigned minutesAgo;
  bool acknowledged;
};

constexpr PastAlert kPastAlerts[] = {
    {AlertKind::NevoAdminLogin, "operator", "10.20.30.77", 1500, true},
    {AlertKind::SwitchWatchdogReset, "Annex", "", 1460, true},
    {AlertKind::SwitchFirmwareVersionDifference, "Annex", "", 1455, true},
    {AlertKind::FirmwareUpdateSucceeded, "Annex", "4.2.1", 1430, true},
    {AlertKind::NevoAdminLogout, "operator", "", 1401, true},
    {AlertKind::UserLogin, "sbrandt", "Video Wall Left", 1890, true},
    {AlertKind::SharedKvmSessionEstablished, "Video Wall Left", "CCTV Recorder 1", 945, true},
    {AlertKind::TemperatureFault, "outlet", "", 830, true},
    {AlertKind::TemperatureFaultCleared, "outlet", "", 802, true},
    {AlertKind::FailedUserLogin, "training", "Training Desk", 640, true},
    {AlertKind::KvmSessionDisconnectedLinkDown, "Training Desk", "Test Rig", 610, true},
    {AlertKind::DeviceReportedError, "Legacy Telemetry", "monitor data could not be read", 420, true},
    {AlertKind::UserLogin, "mtanaka", "Desk 3 Traffic", 211, true},
    {AlertKind::FirmwareUpdateFailed, "Test Rig", "target communication", 180, false},
    {AlertKind::UserLogin, "hlindqvist", "Shift Lead", 95, true},
    {AlertKind::NevoFailedAdminLogin, "root", "10.20.30.91", 61, false},
    {AlertKind::PowerSupplyFault, "B", "", 44, false},
    {AlertKind::DeviceReportedInvalidParameter, "Desk 6 Grid", "videoScaling", 26, false},
    {AlertKind::UserLogin, "rokafor", "Desk 1 Dispatch", 12, false},
    {AlertKind::KvmSessionConnectionFailure, "Desk 1 Dispatch", "Test Rig", 9, false},
};

std::int64_t arrival(const World &world, const Seat &place)
{
  return world.clock.now() - 60 * static_cast<std::int64_t>(place.minutes);
}

void logged(World &world, const Seat &place)
{
  Store &store = world.store;
  const unsigned session = store.create("userSession");
  store.setNumber("userSession", session, "userIndex", place.user);
  store.setNumber("userSession", session, "rxIndex", place.rx);
  store.setNumber("userSession", session, "sessionStartTime", arrival(world, place));
}

void connected(World &world, const Seat &place)
{
  Store &store = world.store;
  const unsigned connection = store.create("connection");
  store.setNumber("connection", connection, "rxIndex", place.rx);
  store.setNumber("connection", connection, "txIndex", place.tx);
  store.setText("connection", connection, "mode", place.mode);
  store.setText("connection", connection, "rxEid", deviceEid(world, {&kReceivers, place.rx}));
  store.setText("connection", connection, "txEid", deviceEid(world, {&kTransmitters, place.tx}));
  store.setNumber("connection", connection, "sessionStartTime",
                  arrival(world, place) + 30 * static_cast<std::int64_t>(place.minutes));
}

void seat(World &world, const Seat &place)
{
  logged(world, place);
  if (place.tx)
    connected(world, place);
}

// An account for one more person of a large fleet; 0 if there is no room.
unsigned hire(World &world, unsigned number, std::set<std::string> &logins)
{
  Store &store = world.store;
  const Person person = personOf(number);
  std::string login = person.login;
  for (unsigned again = 2; !logins.insert(login).second; ++again)
    login = person.login + std::to_string(again);
  const unsigned user = store.create("user");
  if (!user)
    return 0;
  store.setText("user", user, "name", login);
  store.setText("user", user, "fullName", person.fullName);
  store.setText("user", user, "passwordIsInitialized", "is_true");
  store.setText("user", user, "modeAllowed", number % 9 == 4 ? "share_mode" : "share_or_private_mode");
  store.setText("user", user, "allTargetAccess", number % 5 == 2 ? "disabled" : "enabled");
  store.create("userTargetList", user);
  return user;
}

// Who may not reach everything reaches what stands around the own desk.
void allowNeighbours(World &world, unsigned user, unsigned rx)
{
  if (world.store.flag("user", user, "allTargetAccess"))
    return;
  const auto count = static_cast<unsigned>(world.store.count("tx"));
  const Json targets(json_array());
  for (unsigned i = 0; i < 12 && i < count; ++i)
    json_array_append_new(targets.get(),
                          json_pack("{s:i}", "txIndex", static_cast<int>((rx + i) % count + 1)));
  world.store.setNested("userTargetList", user, "target", targets.get());
}

// Two of three people are connected, most of them to something near by; as far as the switch lets them.
unsigned chosenTarget(const World &world, unsigned rx, unsigned number, const char *mode)
{
  const auto count = static_cast<unsigned>(world.store.count("tx"));
  const unsigned steps[] = {number % 7 == 3 ? count / 3 : 0, 1, 2, 3};
  for (const unsigned step : steps) {
    const unsigned tx = (rx + step) % count + 1;
    if (number % 3 != 0 && !mayConnect(world, rx, tx, mode))
      return tx;
  }
  return 0;
}

// In a large fleet somebody sits at every third desk, each person at one.
void seatMany(World &world)
{
  constexpr unsigned kMostPeople = 900;
  std::set<std::string> logins;
  unsigned number = 0;
  for (unsigned rx = 3; rx <= world.store.count("rx") && number < kMostPeople; rx += 3) {
    const unsigned user = hire(world, number, logins);
    if (!user)
      return;
    allowNeighbours(world, user, rx);
    const char *mode = number % 4 == 1 ? "private_mode" : "share_mode";
    const Seat place = {user, rx, 0, mode, 3 + number * 37 % 700};
    if (!mayLogIn(world, user, rx)) {
      logged(world, place);
      const unsigned tx = chosenTarget(world, rx, number, mode);
      if (tx)
        connected(world, {user, rx, tx, mode, place.minutes});
    }
    ++number;
  }
}

// Somebody else at each of so many desks, each connected to a transmitter of their own.
void seatEverybody(World &world, unsigned sessions)
{
  Store &store = world.store;
  const std::size_t desks = std::min(store.count("rx"), store.count("tx"));
  for (unsigned place = 1; place <= sessions && place <= desks; ++place) {
    const unsigned user = store.create("user");
    if (user == 0)
      return;
    char name[16];
    std::snprintf(name, sizeof name, "shift%04u", place);
    store.setText("user", user, "name", name);
    store.setText("user", user, "allTargetAccess", "enabled");
    store.create("userTargetList", user);
    seat(world, {user, place, place, place % 3 ? "share_mode" : "private_mode", 1 + place * 7 % 3000});
  }
}

// So many alerts, the last of them two days ago; nobody has seen to every tenth yet.
void recordMany(World &world, unsigned alerts)
{
  const std::int64_t last = world.clock.now() - 2 * 24 * 3600;
  const auto switchCount = static_cast<unsigned>(world.store.count("swx"));
  for (unsigned i = 0; i < alerts; ++i) {
    const PastAlert &alert = kPastAlerts[i % std::size(kPastAlerts)];
    recordAlert(world, alert.kind, deviceEid(world, {&kSwitches, 1 + i % switchCount}),
                alertText(alert.kind, alert.first, alert.second),
                last - 420 * static_cast<std::int64_t>(alerts - i), i % 10 != 0);
  }
}

// Whom an alert is about: the device that it names, else this switch.
std::string originatorOf(const World &world, const PastAlert &alert)
{
  for (const char *name : {alert.first, alert.second})
    for (const DeviceKind *kind : kDeviceKinds)
      if (const unsigned index = *name ? world.store.findText(kind->resource, "name", name) : 0)
        return deviceEid(world, {kind, index});
  return ownEid(world);
}

struct Past {
  std::int64_t date;
  AlertKind kind;
  std::string originator;
  std::string message;
  bool acknowledged;
};

void addLabAlerts(const World &world, std::vector<Past> &past)
{
  for (const PastAlert &alert : kPastAlerts)
    past.push_back({world.clock.now() - 60 * static_cast<std::int64_t>(alert.minutesAgo), alert.kind,
                    originatorOf(world, alert), alertText(alert.kind, alert.first, alert.second),
                    alert.acknowledged});
}

// The arrivals and connections of everybody who is at a desk of a large fleet.
void addArrivals(const World &world, std::vector<Past> &past)
{
  const Store &store = world.store;
  for (const unsigned session : store.indexes("userSession")) {
    const auto rx = static_cast<unsigned>(store.number("userSession", session, "rxIndex"));
    const auto user = static_cast<unsigned>(store.number("userSession", session, "userIndex"));
    past.push_back(
        {store.number("userSession", session, "sessionStartTime"), AlertKind::UserLogin,
         deviceEid(world, {&kReceivers, rx}),
         alertText(AlertKind::UserLogin, userLabel(world, user), deviceLabel(world, {&kReceivers, rx})),
         true});
  }
  for (const unsigned connection : store.indexes("connection")) {
    const Device rx = {&kReceivers, static_cast<unsigned>(store.number("connection", connection, "rxIndex"))};
    const Device tx = {&kTransmitters,
                       static_cast<unsigned>(store.number("connection", connection, "txIndex"))};
    const bool isShared = store.text("connection", connection, "mode") == "share_mode";
    const AlertKind kind =
        isShared ? AlertKind::SharedKvmSessionEstablished : AlertKind::PrivateKvmSessionEstablished;
    past.push_back({store.number("connection", connection, "sessionStartTime"), kind, deviceEid(world, rx),
                    alertText(kind, deviceLabel(world, rx), deviceLabel(world, tx)), true});
  }
}

// Every device that says that its update failed has told so.
void addFailures(const World &world, std::vector<Past> &past)
{
  for (const DeviceKind *kind : kDeviceKinds)
    for (const unsigned index : world.store.indexes(kind->resource)) {
      const Device device = {kind, index};
      if (deviceText(world, device, "upgradeStatus").rfind("failed", 0) != 0)
        continue;
      past.push_back(
          {world.clock.now() - 60 * static_cast<std::int64_t>(90 + index % 300),
           AlertKind::FirmwareUpdateFailed, deviceEid(world, device),
           alertText(AlertKind::FirmwareUpdateFailed, deviceLabel(world, device), "target communication"),
           index % 3 != 0});
    }
}

} // namespace

void makeHistory(World &world)
{
  recordMany(world, world.settings.alerts);
  std::vector<Past> past;
  if (world.settings.sessions)
    seatEverybody(world, world.settings.sessions);
  else if (world.settings.fleet)
    seatMany(world);
  else
    for (const Seat &place : kSeats)
      seat(world, place);
  addLabAlerts(world, past);
  if (world.settings.fleet && !world.settings.sessions)
    addArrivals(world, past);
  if (world.settings.fleet)
    addFailures(world, past);
  std::stable_sort(past.begin(), past.end(),
                   [](const Past &one, const Past &other) { return one.date < other.date; });
  for (const Past &alert : past)
    recordAlert(world, alert.kind, alert.originator, alert.message, alert.date, alert.acknowledged);
}

} // namespace zelsim
