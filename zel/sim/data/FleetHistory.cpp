// SPDX-License-Identifier: MIT
#include "data/FleetHistory.h"

#include "rules/Alerts.h"
#include "rules/Device.h"

#include <algorithm>
#include <cstdio>
#include <iterator>

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

void seat(World &world, const Seat &place)
{
  Store &store = world.store;
  const std::int64_t since = world.clock.now() - 60 * static_cast<std::int64_t>(place.minutes);
  const unsigned session = store.create("userSession");
  store.setNumber("userSession", session, "userIndex", place.user);
  store.setNumber("userSession", session, "rxIndex", place.rx);
  store.setNumber("userSession", session, "sessionStartTime", since);
  if (!place.tx)
    return;
  const unsigned connection = store.create("connection");
  store.setNumber("connection", connection, "rxIndex", place.rx);
  store.setNumber("connection", connection, "txIndex", place.tx);
  store.setText("connection", connection, "mode", place.mode);
  store.setText("connection", connection, "rxEid", deviceEid(world, {&kReceivers, place.rx}));
  store.setText("connection", connection, "txEid", deviceEid(world, {&kTransmitters, place.tx}));
  store.setNumber("connection", connection, "sessionStartTime",
                  since + 30 * static_cast<std::int64_t>(place.minutes));
}

// In a large fleet a third of the desks are taken; the same few people sit at many of them.
void seatMany(World &world)
{
  const std::size_t count = world.store.count("rx");
  for (unsigned rx = 3; rx <= count; rx += 3)
    seat(world, {3, rx, rx % 2 ? rx : 0, "share_mode", rx % 600});
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

} // namespace

void makeHistory(World &world)
{
  recordMany(world, world.settings.alerts);
  if (world.settings.sessions)
    seatEverybody(world, world.settings.sessions);
  else if (world.settings.fleet)
    seatMany(world);
  else
    for (const Seat &place : kSeats)
      seat(world, place);
  for (const PastAlert &alert : kPastAlerts)
    recordAlert(world, alert.kind, ownEid(world), alertText(alert.kind, alert.first, alert.second),
                world.clock.now() - 60 * static_cast<std::int64_t>(alert.minutesAgo), alert.acknowledged);
}

} // namespace zelsim
