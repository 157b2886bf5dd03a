// SPDX-License-Identifier: MIT
#include "life/Events.h"

#include "life/DeviceLife.h"
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

// A person who may not have one target takes another.
constexpr int choicesOfTarget = 6;

void connectStation(World &world, unsigned rx)
{
  const char *mode = drawn(world, 3) == 0 ? "private_mode" : "share_mode";
  for (int i = 0; i < choicesOfTarget; ++i) {
    const unsigned tx = anyRecord(world, "tx");
    if (tx && connect(world, rx, tx, mode))
      return;
  }
}

Clock::Milliseconds firstLook(World &world)
{
  return static_cast<Clock::Milliseconds>(2000 + drawn(world, 10000));
}

void logSomebodyIn(World &world)
{
  const unsigned user = anyRecord(world, "user"), rx = anyRecord(world, "rx");
  // Administrators sit at the interface, not at desks.
  if (!user || !rx || world.store.text("user", user, "role") == "admin" || !logIn(world, user, rx, false))
    return;
  // Whoever sits down soon takes a target.
  world.clock.after(firstLook(world), [&world, rx] {
    if (world.store.findNumber("userSession", "rxIndex", rx) && !world.store.findNumber("connection", "rxIndex", rx))
      connectStation(world, rx);
  });
}

void logSomebodyOut(World &world)
{
  if (const unsigned session = anyRecord(world, "userSession")) {
    endUserSession(world, session, Ending::Disconnected);
    world.store.remove("userSession", session);
  }
}

void connectSomebody(World &world)
{
  if (const unsigned session = anyRecord(world, "userSession"))
    connectStation(world, static_cast<unsigned>(world.store.number("userSession", session, "rxIndex")));
}

void disconnectSomebody(World &world)
{
  if (const unsigned connection = anyRecord(world, "connection"))
    disconnect(world, connection, Ending::Disconnected);
}

Clock::Milliseconds absence(World &world)
{
  return static_cast<Clock::Milliseconds>(20000 + drawn(world, 100000));
}

void loseDevice(World &world)
{
  const DeviceKind *kind = drawn(world, 2) ? &receivers : &transmitters;
  const unsigned index = anyRecord(world, kind->resource);
  if (index && deviceStatus(world, {kind, index}) == "ready")
    takeOffline(world, {kind, index}, absence(world));
}

void loseSwitch(World &world)
{
  const unsigned index = anyRecord(world, "swx");
  if (index > 1 && world.store.text("swx", index, "status") == "ready")
    takeOffline(world, {&switches, index}, absence(world));
}

struct Turn {
  unsigned weight;
  void (*happens)(World &);
};

constexpr Turn turns[] = {
    {26, logSomebodyIn}, {9, logSomebodyOut}, {30, connectSomebody}, {10, disconnectSomebody},
    {4, loseDevice},     {1, loseSwitch},      {6, haveFault},        {10, haveReport},
};

constexpr unsigned totalWeight()
{
  unsigned sum = 0;
  for (const Turn &turn : turns)
    sum += turn.weight;
  return sum;
}

struct Fault {
  AlertKind begins;
  AlertKind ends;
  const char *parts[3];
};

constexpr Fault faults[] = {
    {AlertKind::FanFault, AlertKind::FanFaultCleared, {"1", "2", "3"}},
    {AlertKind::VoltageFault, AlertKind::VoltageFaultCleared, {"3.3 V", "5 V", "12 V"}},
    {AlertKind::PowerSupplyFault, AlertKind::PowerSupplyFaultCleared, {"A", "B", "B"}},
    {AlertKind::TemperatureFault, AlertKind::TemperatureFaultCleared, {"inlet", "fabric", "outlet"}},
};

struct Report {
  AlertKind kind;
  const char *message;
};

constexpr Report reports[] = {
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
  const Fault &fault = faults[drawn(world, std::size(faults))];
  const std::string part = fault.parts[drawn(world, std::size(fault.parts))];
  const std::string eid = world.store.text("swx", anyRecord(world, "swx"), "eid");
  const unsigned instance = raiseAlert(world, fault.begins, eid, part);
  const AlertKind ends = fault.ends;
  world.clock.after(absence(world), [&world, ends, eid, part, instance] {
    raiseAlert(world, ends, eid, part);
    // What is over needs nobody's acknowledgement any more.
    world.store.remove("unacknowledgedAlerts", instance);
  });
}

void haveReport(World &world)
{
  const Report &report = reports[drawn(world, std::size(reports))];
  const DeviceKind *kind = drawn(world, 2) ? &receivers : &transmitters;
  const unsigned index = anyRecord(world, kind->resource);
  if (index)
    raiseAlert(world, report.kind, deviceEid(world, {kind, index}), deviceLabel(world, {kind, index}),
               report.message);
}

void happen(World &world)
{
  std::size_t point = drawn(world, totalWeight());
  for (const Turn &turn : turns) {
    if (point < turn.weight)
      return turn.happens(world);
    point -= turn.weight;
  }
}

} // namespace zelsim
