// SPDX-License-Identifier: MIT
#include "life/Events.h"

#include "data/JsonText.h"
#include "life/DeviceLife.h"
#include "life/Steps.h"
#include "life/Story.h"
#include "rules/Alerts.h"
#include "rules/Sessions.h"

#include <iterator>
#include <vector>

namespace zelsim
{

namespace
{

unsigned anyOf(World &world, const std::vector<unsigned> &indexes)
{
  return indexes.empty() ? 0 : indexes[drawn(world, indexes.size())];
}

unsigned anyRecord(World &world, const char *resource)
{
  return anyOf(world, world.store.indexes(resource));
}

// Not everybody who is drawn can do what is asked of them; a few more are tried then.
constexpr int kTries = 6;

void logSomebodyIn(World &world)
{
  for (int i = 0; i < kTries; ++i) {
    const unsigned user = anyRecord(world, "user"), rx = anyRecord(world, "rx");
    // Administrators sit at the interface, not at desks.
    if (user && rx && world.store.text("user", user, "role") != "admin" && logIn(world, user, rx, false))
      return;
  }
}

// The more there are, the sooner one goes: true so often as `some` is to `all`.
bool isLikely(World &world, const char *some, const char *all)
{
  const std::size_t whole = world.store.count(all);
  return whole > 0 && drawn(world, whole) < world.store.count(some);
}

void logSomebodyOut(World &world)
{
  const unsigned session = isLikely(world, "userSession", "rx") ? anyRecord(world, "userSession") : 0;
  if (!session)
    return;
  endUserSession(world, session, Ending::Disconnected);
  world.store.remove("userSession", session);
}

void connectSomebody(World &world)
{
  for (int i = 0; i < kTries; ++i) {
    const unsigned session = anyRecord(world, "userSession"), tx = anyRecord(world, "tx");
    const char *mode = drawn(world, 3) == 0 ? "private_mode" : "share_mode";
    const auto rx = static_cast<unsigned>(world.store.number("userSession", session, "rxIndex"));
    if (session && tx && connect(world, rx, tx, mode))
      return;
  }
}

void disconnectSomebody(World &world)
{
  const unsigned connection =
      isLikely(world, "connection", "userSession") ? anyRecord(world, "connection") : 0;
  if (connection)
    disconnect(world, connection, Ending::Disconnected);
}

// Somebody goes through the list and acknowledges what was only for information, but for the latest.
void tidyAlerts(World &world)
{
  constexpr std::size_t leftStanding = 12;
  const std::vector<unsigned> alerts = world.store.indexes("unacknowledgedAlerts");
  for (std::size_t i = 0; i + leftStanding < alerts.size(); ++i)
    if (world.store.text("unacknowledgedAlerts", alerts[i], "severity") == "info" || i + 40 < alerts.size())
      world.store.remove("unacknowledgedAlerts", alerts[i]);
}

Clock::Milliseconds absence(World &world)
{
  return static_cast<Clock::Milliseconds>(20000 + drawn(world, 100000));
}

void loseDevice(World &world)
{
  const DeviceKind *kind = drawn(world, 2) ? &kReceivers : &kTransmitters;
  const unsigned index = anyRecord(world, kind->resource);
  if (index && deviceStatus(world, {kind, index}) == "ready")
    takeOffline(world, {kind, index}, absence(world));
}

void loseSwitch(World &world)
{
  const unsigned index = anyRecord(world, "swx");
  if (index > 1 && world.store.text("swx", index, "status") == "ready")
    takeOffline(world, {&kSwitches, index}, absence(world));
}

// Somebody types a wrong password at a free receiver.
void mistypePassword(World &world)
{
  const unsigned user = anyRecord(world, "user"), rx = anyRecord(world, "rx");
  if (user && rx && !mayLogIn(world, user, rx))
    raiseAlert(world, AlertKind::FailedUserLogin, deviceEid(world, {&kReceivers, rx}), userLabel(world, user),
               deviceLabel(world, {&kReceivers, rx}));
}

// Somebody wants a transmitter that the switch doesn't let them have.
void failToConnect(World &world)
{
  const unsigned session = anyRecord(world, "userSession"), tx = anyRecord(world, "tx");
  const auto rx = static_cast<unsigned>(world.store.number("userSession", session, "rxIndex"));
  if (session && tx && mayConnect(world, rx, tx, "private_mode"))
    raiseAlert(world, AlertKind::KvmSessionConnectionFailure, deviceEid(world, {&kReceivers, rx}),
               deviceLabel(world, {&kReceivers, rx}), deviceLabel(world, {&kTransmitters, tx}));
}

struct Door {
  AlertKind login;
  AlertKind failure;
  AlertKind logout;
  const char *from;
};

constexpr Door kDoors[] = {
    {AlertKind::NevoAdminLogin, AlertKind::NevoFailedAdminLogin, AlertKind::NevoAdminLogout, "10.20.30.77"},
    {AlertKind::RapAdminLogin, AlertKind::RapFailedAdminLogin, AlertKind::RapAdminLogout, "10.20.30.91"},
    {AlertKind::SetupPortAdminLogin, AlertKind::SetupPortFailedAdminLogin, AlertKind::SetupPortAdminLogout,
     "setup port"},
};

// An administrator comes by one of the doors, sometimes with a wrong password, and is gone some minutes
// later.
void visitAsAdministrator(World &world)
{
  const unsigned user = world.store.findText("user", "role", "admin");
  const std::string name = userLabel(world, user);
  const Door &door = kDoors[drawn(world, std::size(kDoors))];
  if (drawn(world, 5) == 0) {
    raiseAlert(world, door.failure, ownEid(world), name, door.from);
    return;
  }
  raiseAlert(world, door.login, ownEid(world), name, door.from);
  const AlertKind logout = door.logout;
  world.clock.after(5 * absence(world),
                    [&world, logout, name] { raiseAlert(world, logout, ownEid(world), name); });
}

struct Turn {
  unsigned weight;
  void (*happens)(World &);
};

// Of a thousand things that happen. A small lab has some 240 in a calm hour.
constexpr Turn kTurns[] = {
    {280, logSomebodyIn},
    {110, logSomebodyOut},
    {300, connectSomebody},
    {140, disconnectSomebody},
    {25, loseDevice},
    {1, loseSwitch},
    {5, haveFault},
    {80, haveReport},
    {12, mistypePassword},
    {10, failToConnect},
    {27, visitAsAdministrator},
    {10, tidyAlerts},
};

constexpr unsigned totalWeight()
{
  unsigned sum = 0;
  for (const Turn &turn : kTurns)
    sum += turn.weight;
  return sum;
}

struct Fault {
  AlertKind begins;
  AlertKind ends;
  const char *parts[3];
};

constexpr Fault kFaults[] = {
    {AlertKind::FanFault, AlertKind::FanFaultCleared, {"1", "2", "3"}},
    {AlertKind::VoltageFault, AlertKind::VoltageFaultCleared, {"3.3 V", "5 V", "12 V"}},
    {AlertKind::PowerSupplyFault, AlertKind::PowerSupplyFaultCleared, {"A", "B", "B"}},
    {AlertKind::TemperatureFault, AlertKind::TemperatureFaultCleared, {"inlet", "fabric", "outlet"}},
};

struct Report {
  AlertKind kind;
  const char *message;
};

constexpr Report kReports[] = {
    {AlertKind::DeviceReportedInfo, "monitor attached"},
    {AlertKind::DeviceReportedInfo, "keyboard enumerated"},
    {AlertKind::DeviceReportedInfo, "video mode changed"},
    {AlertKind::DeviceReportedError, "USB device drew too much current"},
    {AlertKind::DeviceReportedError, "monitor data could not be read"},
    {AlertKind::DeviceReportedInvalidParameter, "videoScaling"},
};

} // namespace

std::size_t drawn(World &world, std::size_t range)
{
  return static_cast<std::size_t>(world.random() % range);
}

void haveFault(World &world)
{
  const Fault &fault = kFaults[drawn(world, std::size(kFaults))];
  const std::string part = fault.parts[drawn(world, std::size(fault.parts))];
  const std::string eid = world.store.text("swx", anyRecord(world, "swx"), "eid");
  const unsigned instance = raiseAlert(world, fault.begins, eid, part);
  const Json about(json_pack("{s:i,s:s,s:s,s:i}", "kind", static_cast<int>(fault.ends), "eid", eid.c_str(),
                             "part", part.c_str(), "instance", static_cast<int>(instance)));
  std::string text;
  appendJson(text, Value::nested(about.get()));
  takeLater(world, Step::EndFault, absence(world), text);
}

void endFault(World &world, const std::string &about)
{
  const Json fault(json_loadb(about.data(), about.size(), 0, nullptr));
  int kind = 0, instance = 0;
  const char *eid = "", *part = "";
  if (json_unpack(fault.get(), "{s:i,s:s,s:s,s:i}", "kind", &kind, "eid", &eid, "part", &part, "instance",
                  &instance) != 0)
    return;
  raiseAlert(world, static_cast<AlertKind>(kind), eid, part);
  // What is over needs nobody's acknowledgement any more.
  world.store.remove("unacknowledgedAlerts", static_cast<unsigned>(instance));
}

void haveReport(World &world)
{
  const Report &report = kReports[drawn(world, std::size(kReports))];
  const DeviceKind *kind = drawn(world, 2) ? &kReceivers : &kTransmitters;
  const unsigned index = anyRecord(world, kind->resource);
  if (index && deviceStatus(world, {kind, index}) == "ready")
    raiseAlert(world, report.kind, deviceEid(world, {kind, index}), deviceLabel(world, {kind, index}),
               report.message);
}

void happen(World &world)
{
  std::size_t point = drawn(world, totalWeight());
  for (const Turn &turn : kTurns) {
    if (point < turn.weight)
      return turn.happens(world);
    point -= turn.weight;
  }
}

} // namespace zelsim
