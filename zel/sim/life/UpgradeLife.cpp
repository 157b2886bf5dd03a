// SPDX-License-Identifier: MIT
#include "life/UpgradeLife.h"

#include "life/DeviceLife.h"
#include "life/FirmwareFile.h"
#include "life/Steps.h"
#include "life/Story.h"
#include "rules/Alerts.h"
#include "rules/Ports.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace zelsim
{

namespace
{

constexpr Clock::Milliseconds kTickTime = 1000;
constexpr int kPercentPerTick = 5;

// A step of an update: up to which percentage it takes, and the word if it fails.
struct Step {
  int ends;
  const char *failure;
  const char *told;
};

constexpr Step kSteps[] = {
    {20, "failed_file_get", "file transfer"},  {25, "failed_file_content", "bad file"},
    {30, "failed_dev_type", "incorrect file"}, {60, "failed_file_push", "target communication"},
    {95, "failed_flash", "reflash"},           {100, "failed", "unknown cause"},
};

unsigned recordOf(const World &world, const Device &device)
{
  return static_cast<unsigned>(world.store.number(device.kind->resource, device.index, "upgradeIndex"));
}

bool isLocalFileBad(const World &world, unsigned record, bool &isEmpty)
{
  if (world.store.text("upgrade", record, "protocol") != "file")
    return false;
  std::error_code error;
  const auto size = std::filesystem::file_size(world.store.text("upgrade", record, "filename"), error);
  isEmpty = !error && size == 0;
  return static_cast<bool>(error);
}

// The word with which the update will fail, or an empty text.
std::string fateOf(const World &world, const Device &device)
{
  const unsigned record = recordOf(world, device);
  if (world.story) {
    const auto ordered = world.story->failures.find({device.kind->resource, device.index});
    if (ordered != world.story->failures.end())
      return ordered->second;
  }
  bool isEmpty = false;
  if (!world.store.exists("upgrade", record) || isLocalFileBad(world, record, isEmpty))
    return "failed_file_get";
  if (isEmpty)
    return "failed_file_content";
  const std::string file = world.store.text("upgrade", record, "filename");
  const std::string omen = failureOfFile(file);
  const std::string type = deviceTypeOfFile(file);
  return omen.empty() && !type.empty() && type != device.kind->resource ? "failed_dev_type" : omen;
}

// A file without a version in its name counts the device's last number up by one.
std::string versionFor(const World &world, const Device &device)
{
  const std::string told = versionOfFile(world.store.text("upgrade", recordOf(world, device), "filename"));
  if (!told.empty())
    return told;
  const std::string present = deviceText(world, device, "firmwareVersion");
  const std::size_t dot = present.find_last_of('.');
  const unsigned long last =
      dot == std::string::npos ? 0 : std::strtoul(present.c_str() + dot + 1, nullptr, 10);
  return present.substr(0, dot) + "." + std::to_string(last + 1);
}

void setState(World &world, const Device &device, const std::string &status, int percent)
{
  world.store.setText(device.kind->resource, device.index, "upgradeStatus", status);
  world.store.setNumber(device.kind->resource, device.index, "upgradePercent", percent);
}

void fail(World &world, const Device &device, const Step &step)
{
  if (world.story)
    world.story->failures.erase({device.kind->resource, device.index});
  setState(world, device, step.failure, 0);
  raiseAlert(world, AlertKind::FirmwareUpdateFailed, deviceEid(world, device), deviceLabel(world, device),
             step.told);
  refreshPortsOf(world, device);
}

void complete(World &world, const Device &device)
{
  const std::string version = versionFor(world, device);
  setState(world, device, "complete", 100);
  world.store.setText(device.kind->resource, device.index, "nextFirmware", version);
  raiseAlert(world, AlertKind::FirmwareUpdateSucceeded, deviceEid(world, device), deviceLabel(world, device),
             version);
  refreshPortsOf(world, device);
  if (!world.store.flag("systemGlobals", 0, "resetAfterUpgrade"))
    return;
  // The outcome stands for a while before the device goes: whoever watches it gets to see it.
  takeLater(world, zelsim::Step::RestartUpdated, 6 * kTickTime,
            device.kind->resource + (" " + std::to_string(device.index)));
}

// Once the file is known, so is what it is for.
void describeFile(World &world, const Device &device)
{
  const unsigned record = recordOf(world, device);
  world.store.setText("upgrade", record, "deviceType", device.kind->resource);
  world.store.setText("upgrade", record, "version", versionFor(world, device));
}

void tick(World &world, const Device &device)
{
  if (deviceText(world, device, "upgradeStatus") != "upgrading")
    return;
  const auto percent = static_cast<int>(
      world.store.number(device.kind->resource, device.index, "upgradePercent") + kPercentPerTick);
  const std::string fate =
      deviceStatus(world, device) == "offline" ? "failed_file_push" : fateOf(world, device);
  for (const Step &step : kSteps)
    if (fate == step.failure && percent >= step.ends)
      return fail(world, device, step);
  if (percent == 30)
    describeFile(world, device);
  if (percent >= 100)
    return complete(world, device);
  setState(world, device, "upgrading", percent);
  world.clock.after(kTickTime, [&world, device] { tick(world, device); });
}

} // namespace

Problem mayUpdate(const World &world, const Device &device, unsigned upgradeIndex)
{
  if (!world.store.exists("upgrade", upgradeIndex))
    return {kNotFound, "upgradeIndex"};
  const std::string status = deviceStatus(world, device);
  if (status == "offline")
    return device.kind->notOnline;
  if (world.store.number(device.kind->resource, device.index, "returnsAt"))
    return device.kind->alreadyResetting;
  return deviceText(world, device, "upgradeStatus") == "upgrading" ? kInUse : kOk;
}

void beginUpdate(World &world, const Device &device, unsigned upgradeIndex)
{
  world.store.setNumber(device.kind->resource, device.index, "upgradeIndex", upgradeIndex);
  setState(world, device, "upgrading", 0);
  refreshPortsOf(world, device);
  world.clock.after(kTickTime, [&world, device] { tick(world, device); });
}

void restartUpdated(World &world, const std::string &about)
{
  const std::size_t blank = about.find(' ');
  for (const DeviceKind *kind : kDeviceKinds) {
    if (about.substr(0, blank) != kind->resource)
      continue;
    const Device device = {kind, static_cast<unsigned>(std::strtoul(about.c_str() + blank + 1, nullptr, 10))};
    if (deviceText(world, device, "upgradeStatus") == "complete" && !mayReset(world, device, "cold_reboot"))
      beginReset(world, device, "cold_reboot");
  }
}

void failNextUpdate(World &world, const Device &device, const std::string &word)
{
  if (world.story)
    world.story->failures[{device.kind->resource, device.index}] = word;
}

void resumeUpdates(World &world)
{
  for (const DeviceKind *kind : kDeviceKinds)
    for (const unsigned index : world.store.indexes(kind->resource)) {
      const Device device = {kind, index};
      if (deviceText(world, device, "upgradeStatus") == "upgrading")
        world.clock.after(kTickTime, [&world, device] { tick(world, device); });
    }
}

} // namespace zelsim
