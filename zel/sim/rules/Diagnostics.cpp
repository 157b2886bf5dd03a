// SPDX-License-Identifier: MIT
#include "data/MonitorBlock.h"
#include "data/VideoTimings.h"
#include "rules/Device.h"
#include "rules/RuleBook.h"

#include <string_view>
#include <vector>

namespace zelsim
{

namespace
{

Value made(const VideoTiming &t)
{
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

// The text of a mode, or of none. There are few, and a view asks for thousands at once.
Value timingValue(const VideoTiming *timing)
{
  static const auto all = [] {
    std::vector<Value> values;
    std::size_t count = 0;
    const VideoTiming *timings = videoTimings(count);
    for (std::size_t i = 0; i < count; ++i)
      values.push_back(made(timings[i]));
    values.push_back(made(VideoTiming{}));
    return values;
  }();
  std::size_t count = 0;
  const VideoTiming *first = videoTimings(count);
  return timing ? all[static_cast<std::size_t>(timing - first)] : all.back();
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

// How a field of the USB state behaves.
enum class Field { Version, Zero, Flag, Counter };

Field fieldOf(std::string_view name)
{
  const auto ends = [name](std::string_view tail) {
    return name.size() >= tail.size() && name.substr(name.size() - tail.size()) == tail;
  };
  if (ends("Version"))
    return Field::Version;
  if (ends("Error") || ends("DisconnectStatus") || ends("MemResetReq") || ends("OsdActive"))
    return Field::Zero;
  return ends("Status") || ends("State") || ends("Active") || ends("Req") ? Field::Flag : Field::Counter;
}

// Counters begin somewhere for each device and move on while it is in a session.
std::int64_t counterValue(const World &world, const Device &device, unsigned connection, unsigned salt,
                          std::int64_t most)
{
  const std::int64_t range = most > 0xffff ? 0x3ff : most > 0xff ? 0xfff : 0x1f;
  const std::int64_t seconds =
      world.clock.now() - world.store.number("connection", connection, "sessionStartTime");
  return (scattered(device.index, salt) + seconds / (1 + salt % 5)) % (range + 1);
}

std::int64_t diagnosticValue(const World &world, const Device &device, Field field, unsigned salt,
                             std::int64_t most)
{
  if (field == Field::Version)
    return 0x0102 + (salt % 3) * 0x100;
  if (field == Field::Zero)
    return 0;
  const unsigned connection =
      world.store.findNumber("connection", device.isReceiver() ? "rxIndex" : "txIndex", device.index);
  if (field == Field::Flag || !connection)
    return connection ? 1 : 0;
  return counterValue(world, device, connection, salt, most);
}

void registerDiagnosticsOf(Rules &rules, const DeviceKind *kind)
{
  const Resource *resource = findResource(kind->diagnostics);
  for (unsigned i = 0; resource && i < resource->parameterCount; ++i) {
    const Field field = fieldOf(resource->parameters[i].name);
    const std::int64_t most = resource->parameters[i].max;
    rules.read(resource->name, resource->parameters[i].name,
               [kind, field, most, i](const World &world, unsigned index) {
                 return Value::integer(diagnosticValue(world, {kind, index}, field, i, most));
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
