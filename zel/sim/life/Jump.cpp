// SPDX-License-Identifier: MIT
#include "life/Jump.h"

#include <algorithm>

namespace zelsim
{

namespace
{

// What is kept as a date. A number below `least` is none.
struct Date {
  const char *resource;
  const char *parameter;
  std::int64_t least;
  std::int64_t unitMs;
};

constexpr Date kDates[] = {
    {"userSession", "sessionStartTime", 1, 1000},
    {"connection", "sessionStartTime", 1, 1000},
    {"adminSession", "sessionStartTime", 1, 1000},
    {"adminSession", "leftAt", 1, 1000},
    {"historicalAlerts", "date", 1, 1000},
    {"unacknowledgedAlerts", "date", 1, 1000},
    {"pendingStep", "at", 1, 1},
    {"rx", "returnsAt", 2, 1000},
    {"tx", "returnsAt", 2, 1000},
    {"swx", "returnsAt", 2, 1000},
    {"rxControl", "flashingUntil", 1, 1000},
    {"txControl", "flashingUntil", 1, 1000},
    {"swxControl", "flashingUntil", 1, 1000},
};

void moveBack(World &world, const Date &date, Clock::Milliseconds distance)
{
  const Resource &resource = *findResource(date.resource);
  const int position = resource.position(date.parameter);
  for (const auto &[index, record] : world.store.records(resource)) {
    const std::int64_t before = world.store.value(resource, record, position).number();
    if (before >= date.least)
      world.store.set(resource, index, position,
                      Value::integer(std::max(date.least, before - distance / date.unitMs)));
  }
}

} // namespace

void jumpAhead(World &world, Clock::Milliseconds distance)
{
  if (distance <= 0)
    return;
  world.clock.jump(distance);
  for (const Date &date : kDates)
    moveBack(world, date, distance);
  for (auto &client : world.clients)
    client.second.since -= distance / 1000;
}

} // namespace zelsim
