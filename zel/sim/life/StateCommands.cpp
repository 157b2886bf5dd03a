// SPDX-License-Identifier: MIT
// Commands that bring a state about, with all that follows from it.
#include "control/Commands.h"
#include "control/Names.h"
#include "life/DeviceLife.h"
#include "life/DeviceStates.h"
#include "rules/Alerts.h"

namespace zelsim
{

namespace
{

using Words = std::vector<std::string>;

Outcome outcomeOf(const std::string &wrong)
{
  return {!wrong.empty(), wrong};
}

Outcome state(World &world, const Words &words)
{
  Device device = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, words[0], words[1], device, wrong))
    return {true, wrong};
  return outcomeOf(setDeviceState(world, device, words[2]));
}

Outcome usage(World &world, const Words &words)
{
  Device swx = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, "swx", words[0], swx, wrong))
    return {true, wrong};
  return outcomeOf(setSwitchUsage(world, swx.index, words[1]));
}

Outcome port(World &world, const Words &words)
{
  Device swx = {&kSwitches, 0};
  unsigned number = 0, other = 0;
  if (std::string wrong; !findDevice(world, "swx", words[0], swx, wrong))
    return {true, wrong};
  if (!readNumber(words[1], number) || (words.size() > 3 && !readNumber(words[3], other)))
    return {true, "that is no number of a port"};
  return outcomeOf(setPortState(world, swx.index, number, words[2], other));
}

Outcome unplug(World &world, const Words &words)
{
  Device device = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, words[0], words[1], device, wrong))
    return {true, wrong};
  return outcomeOf(unplugDevice(world, device));
}

Outcome plug(World &world, const Words &words)
{
  Device device = {words[0] == "tx" ? &kTransmitters : &kReceivers, 0};
  unsigned swx = 0, number = 0;
  if (words[0] != "rx" && words[0] != "tx")
    return {true, "only receivers and transmitters are plugged in"};
  std::string wrong;
  if (words.size() > 1 && words[1] != "new" && !findDevice(world, words[0], words[1], device, wrong))
    return {true, wrong};
  if ((words.size() > 2 && !readNumber(words[2], swx)) || (words.size() > 3 && !readNumber(words[3], number)))
    return {true, "the place is the number of a switch and that of a port"};
  return outcomeOf(plugDevice(world, device, swx, number));
}

Outcome monitor(World &world, const Words &words)
{
  Device rx = {&kReceivers, 0};
  if (std::string wrong; !findDevice(world, "rx", words[0], rx, wrong))
    return {true, wrong};
  return outcomeOf(attachMonitor(world, rx.index, words[1]));
}

Outcome fault(World &world, const Words &words)
{
  Device swx = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, "swx", words[1], swx, wrong))
    return {true, wrong};
  if (words.size() > 2 && words[2] != "over")
    return {true, "\"" + words[2] + "\" is not \"over\""};
  return outcomeOf(setHardwareFault(world, swx.index, words[0], words.size() > 2));
}

Outcome watchdog(World &world, const Words &words)
{
  Device swx = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, "swx", words[0], swx, wrong))
    return {true, wrong};
  if (const Problem problem = mayReset(world, swx, "cold_reboot"))
    return {true, "not possible now (error " + std::to_string(problem.number) + ")"};
  raiseAlert(world, AlertKind::SwitchWatchdogReset, deviceEid(world, swx), deviceLabel(world, swx));
  beginReset(world, swx, "cold_reboot");
  return {};
}

Outcome report(World &world, const Words &words)
{
  Device device = {&kSwitches, 0};
  if (std::string wrong; !findDevice(world, words[0], words[1], device, wrong))
    return {true, wrong};
  AlertKind kind = AlertKind::DeviceReportedInfo;
  if (words[2] == "error")
    kind = AlertKind::DeviceReportedError;
  else if (words[2] == "parameter")
    kind = device.isSwitch() ? AlertKind::SwitchDetectedInvalidParameter
                             : AlertKind::DeviceReportedInvalidParameter;
  else if (words[2] != "info")
    return {true, "\"" + words[2] + "\" is none of info, error, parameter"};
  raiseAlert(world, kind, deviceEid(world, device), deviceLabel(world, device), words[3]);
  return {};
}

} // namespace

void addStateCommands(Commands &commands)
{
  commands.add("state", "rx|tx|swx INDEX WORD",
               "in_recovery, configuring, ready; a switch: conflict_is_master, conflict_other_master, "
               "two_masters, isc_failure, dc_connected, ready",
               3, 3, state);
  commands.add("usage", "SWX WORD", "exceeds_unmanaged_capacity, maintenance or usable, and its devices too",
               2, 2, usage);
  commands.add("port", "SWX PORT WORD [OTHER]",
               "loopback, self (with OTHER), invalid, error, not_added, well", 3, 4, port);
  commands.add("unplug", "rx|tx INDEX", "pull a device's plug", 2, 2, unplug);
  commands.add("plug", "rx|tx [INDEX|new [SWX [PORT]]]", "plug a device in, or one that was never there", 1,
               4, plug);
  commands.add("monitor", "RX N|none|broken", "attach one of the monitors 1 to 7 to a receiver", 2, 2,
               monitor);
  commands.add("fault", "fan|voltage|power|temperature SWX [over]",
               "a part of a switch fails, or works again", 2, 3, fault);
  commands.add("watchdog", "SWX", "a switch hangs, and its watchdog resets it", 1, 1, watchdog);
  commands.add("report", "rx|tx|swx INDEX info|error|parameter TEXT", "a device has something to say", 4, 4,
               report);
}

} // namespace zelsim
