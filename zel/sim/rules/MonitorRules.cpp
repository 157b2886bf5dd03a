// SPDX-License-Identifier: MIT
#include "rules/MonitorData.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

Problem checkUnprotected(World &world, const Call &call)
{
  return world.store.flag("edid", call.index, "isProtected") ? kNotAllowed : kOk;
}

// The device that the request names; index 0 if it names none.
Device deviceIn(const Call &call)
{
  if (call.has("rxIndex"))
    return {&kReceivers, static_cast<unsigned>(call.number("rxIndex"))};
  return {&kTransmitters, static_cast<unsigned>(call.number("txIndex"))};
}

Problem checkDevice(const World &world, const Device &device)
{
  if (!device.index)
    return {kMissingParameter, "txIndex"};
  if (!world.store.exists(device.kind->resource, device.index))
    return kNotFound;
  return deviceStatus(world, device) == "ready" ? Problem() : Problem(device.kind->notOnline);
}

Problem pull(World &world, const Call &call)
{
  const Device device = deviceIn(call);
  if (const Problem problem = checkDevice(world, device))
    return problem;
  const std::string name = call.text("edidName");
  if (name.empty())
    return {kMissingParameter, "edidName"};
  if (world.store.findText("edid", "name", name))
    return {kNotUnique, "edidName"};
  const std::string data = monitorDataOf(world, device);
  if (data.empty())
    return kBadContent;
  const unsigned index = world.store.create("edid");
  if (!index)
    return kCapacityReached;
  world.store.setText("edid", index, "name", name);
  world.store.setText("edid", index, "description", call.text("edidDescription"));
  world.store.setText("edid", index, "data", data);
  return kOk;
}

Problem push(World &world, const Call &call)
{
  const Device device = {&kTransmitters, static_cast<unsigned>(call.number("txIndex"))};
  if (const Problem problem = checkDevice(world, device))
    return problem;
  const auto edid = static_cast<unsigned>(call.number("edidIndex"));
  if (!world.store.exists("edid", edid))
    return {kNotFound, "edidIndex"};
  world.store.setText("tx", device.index, "edidData", world.store.text("edid", edid, "data"));
  return kOk;
}

// Reading or writing a monitor's data takes some devices longer than others. Where nothing happens by itself,
// it takes no time.
int workTime(const World &world, const Call &call)
{
  return world.settings.liveliness > 0 ? 250 + static_cast<int>(deviceIn(call).index * 173 % 700) : 0;
}

} // namespace

void registerMonitorRules(Rules &rules)
{
  rules.check("edid", Method::Set, checkUnprotected);
  rules.check("edid", Method::Delete, checkUnprotected);
  rules.onParameter("edidControl", "edidAction", [](World &world, Call &call) {
    call.takesMs = workTime(world, call);
    return call.text("edidAction") == "push" ? push(world, call) : pull(world, call);
  });
}

} // namespace zelsim
