// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_LIFE_DEVICE_LIFE_H_
#define ZEL_SIM_LIFE_DEVICE_LIFE_H_

#include "rules/Device.h"

#include <string>
#include <vector>

namespace zelsim
{

/// How devices go down and come up. A reset takes a receiver or transmitter through "reset_pending",
/// "offline" and "configuring" to "ready" in about six seconds; a switch is "resetting" for as long, and
/// takes what is attached to it along. Every step is kept in the store, so a reset goes on after a restart.

/// The receivers and transmitters whose place is on that switch.
std::vector<Device> attachedTo(const World &world, unsigned swxIndex);

/// The devices of a switch that goes down are out of reach until it is back. Those that are off line anyway
/// are not touched, and stay so.
void loseAttached(World &world, unsigned swxIndex);
void regainAttached(World &world, unsigned swxIndex);

/// Whether the device can be reset with that word of "reset" now.
Problem mayReset(const World &world, const Device &device, const std::string &word);

/// Begins a reset. What the word restores is restored when the device comes up again.
void beginReset(World &world, const Device &device, const std::string &word);

/// Takes a device off line; its sessions end. It returns by itself after `returnAfter`, or never if that is
/// 0.
void takeOffline(World &world, const Device &device, Clock::Milliseconds returnAfter);

/// Brings a device that is off line up again.
void bringUp(World &world, const Device &device);

/// Goes on with every reset and return that a stop interrupted.
void resumeDevices(World &world);

} // namespace zelsim

#endif // ZEL_SIM_LIFE_DEVICE_LIFE_H_
