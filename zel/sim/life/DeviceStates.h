// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_DEVICE_STATES_H_
#define ZEL_SIM_LIFE_DEVICE_STATES_H_

#include "rules/Device.h"

#include <string>

namespace zelsim
{

/// States that nothing in the simulation leads to by itself, with all that follows from them, and the way
/// back. Each function answers with what is wrong with its words, or with an empty text.

/// A switch: "dc_connected", "conflict_is_master", "conflict_other_master", "two_masters" (the latter as
/// seen from a switch that two masters claim) or "isc_failure" put its devices out of reach; "ready" brings
/// them back. A receiver or transmitter: "in_recovery", "configuring" or "ready". Sessions end.
std::string setDeviceState(World &world, const Device &device, const std::string &word);

/// A switch beyond the unmanaged capacity ("exceeds_unmanaged_capacity"), under "maintenance" or "usable".
/// Its devices can't be used meanwhile, and their sessions end.
std::string setSwitchUsage(World &world, unsigned swxIndex, const std::string &word);

/// What is wrong with a port: "loopback", "self" (joined to the port `other`), "invalid", "error",
/// "not_added", or "well" again. A device on it goes off line but for "not_added".
std::string setPortState(World &world, unsigned swxIndex, unsigned port, const std::string &word,
                         unsigned other);

/// Pulls the plug of a receiver or transmitter; puts it in at a port of a switch, or with 0 at the first free
/// one of the first switch that has one. Index 0 makes a device that was never there.
std::string unplugDevice(World &world, const Device &device);
std::string plugDevice(World &world, Device device, unsigned swxIndex, unsigned port);

/// Attaches monitor `number` (1 to 7) to a receiver; "none" and "broken" are one that isn't there and one
/// whose data can't be read.
std::string attachMonitor(World &world, unsigned rxIndex, const std::string &word);

/// A part of a switch fails, "fan", "voltage", "power" or "temperature", or works again.
std::string setHardwareFault(World &world, unsigned swxIndex, const std::string &word, bool over);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_DEVICE_STATES_H_
