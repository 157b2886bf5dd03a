// SPDX-License-Identifier: MIT
#include "rules/Device.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

void stopFlashing(World &world, const Device &device)
{
  const std::int64_t until = world.store.number(device.kind->control, device.index, "flashingUntil");
  if (until && until <= world.clock.now())
    world.store.setNumber(device.kind->control, device.index, "flashingUntil", 0);
}

Problem flash(World &world, const Device &device, std::int64_t seconds)
{
  if (deviceStatus(world, device) == "offline")
    return device.kind->notOnline;
  const bool stops = seconds <= 1;
  world.store.setNumber(device.kind->control, device.index, "flashingUntil",
                        stops ? 0 : world.clock.now() + seconds);
  if (!stops)
    world.clock.after(seconds * 1000, [&world, device] { stopFlashing(world, device); });
  return kOk;
}

} // namespace

void registerFlashRules(Rules &rules)
{
  for (const DeviceKind *kind : kDeviceKinds)
    rules.onParameter(kind->control, "lcdBacklightFlashDuration", [kind](World &world, Call &call) {
      return flash(world, {kind, call.index}, call.number("lcdBacklightFlashDuration"));
    });
}

} // namespace zelsim
