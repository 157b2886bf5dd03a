// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_DEVICE_H_
#define ZEL_SIM_RULES_DEVICE_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// What is different between receivers, transmitters and switches, for rules that are the same for all.
struct DeviceKind {
  const char *resource;
  const char *control;     // the resource of its commands
  const char *diagnostics; // the resource of its USB state; null for switches
  Errno notOnline;
  Errno alreadyResetting;
  Errno partialUnsupported; // kOk if a partial restore of factory defaults is possible
};

extern const DeviceKind kReceivers;
extern const DeviceKind kTransmitters;
extern const DeviceKind kSwitches;

/// All three, for loops.
extern const DeviceKind *const kDeviceKinds[3];

/// One device: a record of "rx", "tx" or "swx".
struct Device {
  const DeviceKind *kind;
  unsigned index;

  bool isReceiver() const { return kind == &kReceivers; }
  bool isTransmitter() const { return kind == &kTransmitters; }
  bool isSwitch() const { return kind == &kSwitches; }
  /// The switch that the simulation is.
  bool isSelf() const { return isSwitch() && index == 1; }
};

std::string deviceText(const World &world, const Device &device, const char *parameter);
std::string deviceStatus(const World &world, const Device &device);
std::string deviceEid(const World &world, const Device &device);
/// The name, or the EID of a device without one.
std::string deviceLabel(const World &world, const Device &device);
/// The EID of this switch.
std::string ownEid(const World &world);

/// The device of that EID; its index is 0 if there is none.
Device findDevice(const World &world, const std::string &eid);

/// Makes the records that go along with a device: its control and diagnostics. Removes them.
void addCompanions(World &world, const Device &device);
void removeCompanions(World &world, const Device &device);

} // namespace zelsim

#endif // ZEL_SIM_RULES_DEVICE_H_
