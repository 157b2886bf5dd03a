// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_MONITOR_DATA_H_
#define ZEL_SIM_RULES_MONITOR_DATA_H_

#include "data/MonitorBlock.h"
#include "rules/Device.h"

#include <string>

namespace zelsim
{

/// A value of a receiver's "monitor": one whose data has a wrong sum.
constexpr unsigned kBrokenMonitor = 1000;

/// Adds a record to the monitor library. Returns its index, or 0 if the library is full.
unsigned addMonitor(World &world, const std::string &name, const std::string &description,
                    const MonitorBlock &block, bool isProtected);

/// The kept form of the monitor data that a receiver's monitor shows or that a transmitter holds; empty if
/// no monitor is attached to the receiver.
std::string monitorDataOf(const World &world, const Device &device);

} // namespace zelsim

#endif // ZEL_SIM_RULES_MONITOR_DATA_H_
