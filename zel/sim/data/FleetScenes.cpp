// SPDX-License-Identifier: MIT
#include "data/FleetScenes.h"

#include "Base64.h"
#include "data/MonitorBlock.h"
#include "rules/Device.h"

#include <algorithm>
#include <iterator>

namespace zelsim
{

namespace
{

// A parameter of a device or a user of the lab.
struct Fact {
  const char *resource;
  unsigned index;
  const char *parameter;
  const char *text;
};

constexpr Fact kLabFacts[] = {
    {"swx", 2, "location", "Building 4, level 0"},
    {"swx", 2, "description", "Racks 1 to 6"},
    {"swx", 3, "location", "Building 7, level 2"},
    {"swx", 2, "primaryNtpIpAddress", "time.example.net"},
    {"rx", 1, "location", "Row A, seat 1"},
    {"rx", 1, "description", "Dispatch desk with two phones"},
    {"rx", 2, "location", "Row A, seat 2"},
    {"rx", 3, "location", "Row B, seat 1"},
    {"rx", 4, "location", "Row B, seat 2"},
    {"rx", 5, "location", "Row C, seat 1"},
    {"rx", 6, "location", "Row C, seat 2"},
    {"rx", 6, "notes", "Second screen ordered"},
    {"rx", 7, "location", "Row D, seat 1"},
    {"rx", 7, "modeAllowed", "private_mode"},
    {"rx", 8, "location", "Wall, left third"},
    {"rx", 8, "modeAllowed", "share_mode"},
    {"rx", 9, "location", "Wall, middle third"},
    {"rx", 10, "location", "Wall, right third"},
    {"rx", 10, "usbMode", "disabled"},
    {"rx", 11, "location", "Building 4, room 212"},
    {"rx", 12, "location", "Building 4, room 213"},
    {"rx", 13, "location", "Workshop"},
    {"rx", 15, "location", "Building 7, room 3"},
    {"rx", 15, "status", "offline"},
    {"rx", 16, "location", "Gallery, behind glass"},
    {"rx", 16, "keyboardLayout", "fr"},
    {"rx", 16, "firmwareVersion", "4.1.3"},
    {"tx", 1, "location", "Rack 2, unit 14"},
    {"tx", 1, "notes", "Restart only with the shift lead"},
    {"tx", 2, "location", "Rack 2, unit 16"},
    {"tx", 3, "location", "Rack 3, unit 4"},
    {"tx", 4, "location", "Rack 3, unit 8"},
    {"tx", 5, "location", "Rack 3, unit 12"},
    {"tx", 6, "location", "Rack 4, unit 2"},
    {"tx", 6, "description", "Gate, yard and roof"},
    {"tx", 7, "location", "Rack 4, unit 6"},
    {"tx", 7, "description", "Halls 1 to 3"},
    {"tx", 8, "location", "Rack 5, unit 20"},
    {"tx", 10, "modeAllowed", "share_mode"},
    {"tx", 12, "modeAllowed", "private_mode"},
    {"tx", 13, "wakeOnLan", "enabled"},
    {"tx", 13, "wakeOnLanMacAddress", "02:4B:56:4D:00:0D"},
    {"tx", 13, "location", "Building 4, room 108"},
    {"tx", 15, "status", "offline"},
    {"tx", 15, "upgradeStatus", "failed_file_push"},
    {"tx", 15, "location", "Workshop"},
    {"tx", 16, "firmwareVersion", "4.0.7"},
    {"tx", 16, "description", "To be replaced"},
};

struct Habit {
  const char *user;
  const char *keySettings;
};

constexpr Habit kHabits[] = {
    {"hlindqvist",
     R"({"osdHotKey":{"hotKey":"control_control","customKeys":{"sequence":"AAA=","length":0}},"osdShortCuts":[)"
     R"({"functionKey":"f1","action":"connect_last_target","txEID":""},)"
     R"({"functionKey":"f2","action":"connect_previous_target","txEID":""},)"
     R"({"functionKey":"f3","action":"connect_next_target","txEID":""},)"
     R"({"functionKey":"f12","action":"logout_and_disconnect","txEID":""}]})"},
    {"sbrandt",
     R"({"osdHotKey":{"hotKey":"scroll_lock_scroll_lock","customKeys":{"sequence":"AAA=","length":0}},)"
     R"("osdShortCuts":[{"functionKey":"f1","action":"connect_to_target_x","txEID":"%"}]})"},
    {"pmoreau", R"({"osdHotKey":{"hotKey":"custom","customKeys":{"sequence":"RUY=","length":2}},)"
                R"("osdShortCuts":[]})"},
};

void setKeys(World &world, const Habit &habit)
{
  const unsigned user = world.store.findText("user", "name", habit.user);
  std::string text = habit.keySettings;
  if (const std::size_t place = text.find('%'); place != std::string::npos)
    text.replace(place, 1, deviceEid(world, {&kTransmitters, 6}));
  const Json json(json_loadb(text.data(), text.size(), 0, nullptr));
  world.store.setNested("user", user, "keySettings", json.get());
}

Json entriesOf(const std::vector<unsigned> &transmitters)
{
  Json list(json_array());
  for (const unsigned tx : transmitters)
    json_array_append_new(list.get(), json_pack("{s:i}", "txIndex", static_cast<int>(tx)));
  return list;
}

void give(World &world, const char *resource, const char *parameter, const char *user,
          const std::vector<unsigned> &transmitters)
{
  world.store.setNested(resource, world.store.findText("user", "name", user), parameter,
                        entriesOf(transmitters).get());
}

std::vector<unsigned> firstOnes(unsigned count, unsigned all)
{
  std::vector<unsigned> numbers;
  for (unsigned tx = 1; tx <= std::min(count, all); ++tx)
    numbers.push_back(tx);
  return numbers;
}

// A transmitter that holds something no monitor would tell.
void breakMonitorData(World &world, unsigned txIndex)
{
  std::size_t count = 0;
  MonitorBlock block = monitorBlock(monitorModels(count)[0], txIndex);
  block[1] = 0;
  world.store.setText("tx", txIndex, "edidData", zelwire::encodeBase64(block.data(), block.size()));
}

// Even over the numbers, and not in step with the order of devices.
unsigned scattered(unsigned number, unsigned salt)
{
  unsigned value = number * 2654435761u ^ salt * 40503u;
  value ^= value >> 15;
  return (value * 2246822519u >> 8) % 1000;
}

std::string placeOf(unsigned number, bool isDesk)
{
  const std::string building(1, static_cast<char>('A' + number / 200 % 26));
  if (isDesk)
    return "Building " + building + ", floor " + std::to_string(1 + number / 40 % 5) + ", desk " +
           std::to_string(1 + number % 40);
  return "Building " + building + ", rack " + std::to_string(1 + number / 20 % 10) + ", unit " +
         std::to_string(2 * (1 + number % 20));
}

struct Share {
  unsigned perMille;
  const char *text;
};

// The text whose share the number falls into; null beyond them all.
template <std::size_t N> const char *drawnFrom(const Share (&shares)[N], unsigned perMille)
{
  for (const Share &share : shares) {
    if (perMille < share.perMille)
      return share.text;
    perMille -= share.perMille;
  }
  return nullptr;
}

// The first devices of a large fleet are the lab's, which the past tells of.
constexpr unsigned kPlainDevices = 16;

constexpr Share kStates[] = {{22, "offline"}, {4, "in_recovery"}};
constexpr Share kVersions[] = {{170, "4.2.0"}, {80, "4.1.3"}, {20, "4.0.7"}};
constexpr Share kModes[] = {{40, "share_mode"}, {30, "private_mode"}};
constexpr Share kUpdates[] = {{6, "failed_file_push"}, {4, "failed_flash"}, {3, "failed_dev_type"}};
constexpr Share kNotes[] = {{12, "To be replaced"}, {12, "Restart only with the shift lead"}, {8, "On loan"}};

void furnishDevice(World &world, const Device &device)
{
  Store &store = world.store;
  const char *resource = device.kind->resource;
  const unsigned salt = device.isReceiver() ? 1 : 2;
  const auto put = [&](const char *parameter, const char *text) {
    if (text)
      store.setText(resource, device.index, parameter, text);
  };
  store.setText(resource, device.index, "location", placeOf(device.index, device.isReceiver()));
  put("status", drawnFrom(kStates, scattered(device.index, salt)));
  put("firmwareVersion", drawnFrom(kVersions, scattered(device.index, salt + 10)));
  put("modeAllowed", drawnFrom(kModes, scattered(device.index, salt + 20)));
  put("upgradeStatus", drawnFrom(kUpdates, scattered(device.index, salt + 30)));
  put("notes", drawnFrom(kNotes, scattered(device.index, salt + 40)));
}

} // namespace

void furnishLab(World &world)
{
  for (const Fact &fact : kLabFacts)
    world.store.setText(fact.resource, fact.index, fact.parameter, fact.text);
  world.store.setText("swx", 2, "ntpEnable", "enabled");
  world.store.setText("swx", 2, "ntpStatus", "success");
  world.store.setNumber("rx", 12, "monitor", 0);
  world.store.setText("rx", 10, "autoConnectTxEid", deviceEid(world, {&kTransmitters, 6}));
  breakMonitorData(world, 16);
}

void furnishFleet(World &world)
{
  for (const DeviceKind *kind : {&kReceivers, &kTransmitters})
    for (const unsigned index : world.store.indexes(kind->resource))
      if (index > kPlainDevices)
        furnishDevice(world, {kind, index});
  for (const unsigned index : world.store.indexes("swx"))
    world.store.setText("swx", index, "location", placeOf((index - 1) * 200, false));
  const auto transmitters = static_cast<unsigned>(world.store.count("tx"));
  if (transmitters > 0)
    breakMonitorData(world, transmitters);
}

void furnishPeople(World &world)
{
  for (const Habit &habit : kHabits)
    setKeys(world, habit);
  const auto transmitters = static_cast<unsigned>(world.store.count("tx"));
  if (transmitters < 10)
    return;
  // One list of favourites is nearly full, two differ in their order only, one goes beyond the rights.
  give(world, "user", "favorite", "hlindqvist", firstOnes(31, transmitters));
  give(world, "user", "favorite", "operator", {1, 2, 4});
  give(world, "user", "favorite", "sbrandt", {4, 2, 1});
  give(world, "userTargetList", "target", "mtanaka", {1, 3, 7, 9, 10});
  give(world, "user", "favorite", "mtanaka", {7, 9});
  give(world, "userTargetList", "target", "pmoreau", {8, 9, 10});
  give(world, "user", "favorite", "pmoreau", {8, 10, 1});
  const unsigned external = world.store.findText("user", "mgrName", "locampo");
  world.store.setNested("userTargetList", external, "target", entriesOf({1, 4, 6}).get());
}

} // namespace zelsim
