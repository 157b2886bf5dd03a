// SPDX-License-Identifier: MIT
#include "rules/Alerts.h"

namespace zelsim
{

namespace
{

const char *const kAlertLists[] = {"historicalAlerts", "unacknowledgedAlerts"};

void addTo(World &world, const char *list, unsigned instance, AlertKind kind,
           const std::string &originatorEid, const std::string &message, std::int64_t date)
{
  const Resource *resource = findResource(list);
  const auto &records = world.store.records(*resource);
  while (records.size() >= resource->capacity)
    world.store.remove(list, records.begin()->first);
  world.store.create(list, instance);
  world.store.setNumber(list, instance, "instanceId", instance);
  world.store.setNumber(list, instance, "date", date);
  world.store.setText(list, instance, "severity", alertKindInfo(kind).severity);
  world.store.setText(list, instance, "originatorEid", originatorEid);
  world.store.setText(list, instance, "alertMsg", message);
}

unsigned nextInstance(World &world)
{
  const auto instance = static_cast<unsigned>(world.store.number("alertsControl", 0, "lastInstanceId") + 1);
  world.store.setNumber("alertsControl", 0, "lastInstanceId", instance);
  return instance;
}

} // namespace

unsigned raiseAlert(World &world, AlertKind kind, const std::string &originatorEid, const std::string &first,
                    const std::string &second)
{
  if (!world.store.flag("alertLogControl", 0, alertKindInfo(kind).enable))
    return 0;
  const unsigned instance = nextInstance(world);
  const std::string message = alertText(kind, first, second);
  for (const char *list : kAlertLists)
    addTo(world, list, instance, kind, originatorEid, message, world.clock.now());
  return instance;
}

void raiseAlertLater(World &world, AlertKind kind, const std::string &originatorEid, const std::string &first,
                     const std::string &second)
{
  world.clock.after(0, [&world, kind, originatorEid, first, second] {
    raiseAlert(world, kind, originatorEid, first, second);
  });
}

void recordAlert(World &world, AlertKind kind, const std::string &originatorEid, const std::string &message,
                 std::int64_t date, bool acknowledged)
{
  const unsigned instance = nextInstance(world);
  addTo(world, kAlertLists[0], instance, kind, originatorEid, message, date);
  if (!acknowledged)
    addTo(world, kAlertLists[1], instance, kind, originatorEid, message, date);
}

} // namespace zelsim
