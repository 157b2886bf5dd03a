// SPDX-License-Identifier: MIT
#include "rules/Rediscovery.h"

#include "data/Fleet.h"
#include "data/JsonText.h"
#include "life/DeviceLife.h"
#include "life/Steps.h"

#include <cstring>

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kRediscoveryTime = 20000;

// What is known of a device that announces itself: what it is, but nothing that was set.
const char *const kAnnounced[] = {"eid", "detailedDeviceType", "serialNumber", "partNumber",
                                  "firmwareVersion"};
const char *const kAnnouncedNumbers[] = {"attachedSwx", "attachedPort", "monitor", "portCount"};

const DeviceKind *kindOf(const char *resource)
{
  for (const DeviceKind *kind : kDeviceKinds)
    if (resource && std::strcmp(resource, kind->resource) == 0)
      return kind;
  return nullptr;
}

} // namespace

void rediscoverLater(World &world, const Device &device)
{
  const Json known(json_object());
  json_object_set_new(known.get(), "resource", json_string(device.kind->resource));
  json_object_set_new(known.get(), "index", json_integer(device.index));
  for (const char *parameter : kAnnounced)
    json_object_set_new(known.get(), parameter, json_string(deviceText(world, device, parameter).c_str()));
  for (const char *parameter : kAnnouncedNumbers)
    json_object_set_new(known.get(), parameter,
                        json_integer(world.store.number(device.kind->resource, device.index, parameter)));
  std::string about;
  appendJson(about, Value::nested(known.get()));
  takeLater(world, Step::Announce, kRediscoveryTime, about);
}

void announce(World &world, const std::string &about)
{
  const Json known(json_loadb(about.data(), about.size(), 0, nullptr));
  const DeviceKind *kind = kindOf(json_string_value(json_object_get(known.get(), "resource")));
  if (!kind)
    return;
  const Device device = {kind,
                         static_cast<unsigned>(json_integer_value(json_object_get(known.get(), "index")))};
  if (!world.store.create(kind->resource, device.index))
    return;
  for (const char *parameter : kAnnounced)
    if (const char *text = json_string_value(json_object_get(known.get(), parameter)))
      world.store.setText(kind->resource, device.index, parameter, text);
  for (const char *parameter : kAnnouncedNumbers)
    world.store.setNumber(kind->resource, device.index, parameter,
                          json_integer_value(json_object_get(known.get(), parameter)));
  if (device.isSwitch())
    assignAddresses(world, device.index);
  applyDefaults(world, device);
  addCompanions(world, device);
  bringUp(world, device);
}

void applyDefaults(World &world, const Device &device)
{
  if (device.isTransmitter()) {
    world.store.setText("tx", device.index, "usbMode",
                        world.store.text("cfgDefaults", 0, "txDefaultUsbMode"));
    world.store.setText("tx", device.index, "trafficSetting",
                        world.store.text("cfgDefaults", 0, "txDefaultTrafficPriority"));
  } else if (device.isReceiver()) {
    world.store.setNumber("rx", device.index, "sessionInactivityTimeout",
                          world.store.number("cfgDefaults", 0, "rxDefaultSessionInactivityTimeout"));
  }
}

} // namespace zelsim
