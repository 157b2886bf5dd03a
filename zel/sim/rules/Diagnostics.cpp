// SPDX-License-Identifier: MIT
#include "data/MonitorBlock.h"
#include "data/VideoTimings.h"
#include "rules/Device.h"
#include "rules/RuleBook.h"

#include <string>

namespace zelsim
{

namespace
{

Value timingValue(const VideoTiming *timing)
{
  const VideoTiming none{};
  const VideoTiming &t = timing ? *timing : none;
  const auto number = [](unsigned value) { return static_cast<json_int_t>(value); };
  const auto polarity = [](bool positive) { return positive ? "positive_polarity" : "negative_polarity"; };
  const Json json(json_pack(
      "{s:I,s:I,s:I,s:s,s:I,s:I,s:I,s:s,s:I,s:I,s:I}", "horizontalResolution", number(t.horizontalResolution),
      "verticalResolution", number(t.verticalResolution), "pixelClockFrequency", number(t.pixelClock),
      "horizontalSyncPolarity", polarity(t.horizontalPositive), "horizontalFrontPorch",
      number(t.horizontalFrontPorch), "horizontalSyncWidth", number(t.horizontalSyncWidth),
      "horizontalBackPorch", number(t.horizontalBackPorch), "verticalSyncPolarity",
      polarity(t.verticalPositive), "verticalFrontPorch", number(t.verticalFrontPorch), "verticalSyncWidth",
      number(t.verticalSyncWidth), "verticalBackPorch", number(t.verticalBackPorch)));
  return Value::nested(json.get());
}

const VideoTiming *timingAt(std::size_t row)
{
  std::size_t count = 0;
  const VideoTiming *timings = videoTimings(count);
  return &timings[row % count];
}

// The mode of the receiver's monitor; null without one.
const VideoTiming *monitorTiming(const World &world, unsigned rxIndex)
{
  const auto monitor = static_cast<unsigned>(world.store.number("rx", rxIndex, "monitor"));
  std::size_t count = 0;
  const MonitorModel *models = monitorModels(count);
  return monitor ? timingAt(models[(monitor - 1) % count].timing) : nullptr;
}

// The mode that the connected computer sends; null without a session.
const VideoTiming *inputTiming(const World &world, unsigned rxIndex)
{
  const unsigned connection = world.store.findNumber("connection", "rxIndex", rxIndex);
  return connection
             ? timingAt(static_cast<std::size_t>(world.store.number("connection", connection, "txIndex")))
             : nullptr;
}

void registerTimings(Rules &rules)
{
  rules.read("rx", "inputVideoTiming",
             [](const World &world, unsigned index) { return timingValue(inputTiming(world, index)); });
  rules.read("rx", "monPrefVideoTiming",
             [](const World &world, unsigned index) { return timingValue(monitorTiming(world, index)); });
  rules.read("rx", "outputVideoTiming", [](const World &world, unsigned index) {
    const VideoTiming *input = inputTiming(world, index);
    const bool scales = world.store.flag("rx", index, "videoScaling");
    return timingValue(input && !scales ? input : monitorTiming(world, index));
  });
}

// A number that looks like a counter's: the same for a device as long as nothing happens, other for others.
unsigned scattered(unsigned index, unsigned salt)
{
  unsigned value = (index * 2654435761u) ^ (salt * 40503u + 0x9E37u);
  value ^= value >> 15;
  return value * 2246822519u >> 8;
}

std::int64_t diagnosticValue(const World &world, const Device &device, const Parameter &row, unsigned salt)
{
  const std::string name = row.name;
  const auto ends = [&name](const std::string &tail) {
    return name.size() >= tail.size() && name.compare(name.size() - tail.size(), tail.size(), tail) == 0;
  };
  const char *key = device.isReceiver() ? "rxIndex" : "txIndex";
  const bool connected = world.store.findNumber("connection", key, device.index) != 0;
  if (ends("Version"))
    return 0x0102 + (salt % 3) * 0x100;
  if (ends("Error") || ends("DisconnectStatus") || ends("MemResetReq") || ends("OsdActive"))
    return 0;
  if (ends("Status") || ends("State") || ends("Active") || ends("Req"))
    return connected ? 1 : 0;
  const std::int64_t range = row.max > 0xffff ? 0x3ff : row.max > 0xff ? 0xfff : 0x1f;
  return connected ? scattered(device.index, salt) % (range + 1) : 0;
}

void registerDiagnosticsOf(Rules &rules, const DeviceKind *kind)
{
  const Resource *resource = findResource(kind->diagnostics);
  for (unsigned i = 0; resource && i < resource->parameterCount; ++i) {
    const Parameter *row = &resource->parameters[i];
    rules.read(resource->name, row->name, [kind, row, i](const World &world, unsigned index) {
      return Value::integer(diagnosticValue(world, {kind, index}, *row, i));
    });
  }
}

} // namespace

void registerDiagnostics(Rules &rules)
{
  registerTimings(rules);
  registerDiagnosticsOf(rules, &kReceivers);
  registerDiagnosticsOf(rules, &kTransmitters);
  rules.read("swx", "currentSysTime",
             [](const World &world, unsigned) { return Value::integer(world.clock.now()); });
}

} // namespace zelsim
