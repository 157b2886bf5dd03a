// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_REDISCOVERY_H_
#define ZEL_SIM_RULES_REDISCOVERY_H_

#include "rules/Device.h"

#include <string>

namespace zelsim
{

/// A device that is removed while it runs announces itself again after a while: it is what it was, but
/// nothing that was set. A switch brings back what is attached to it.
void rediscoverLater(World &world, const Device &device);

/// The same as a step (Steps.h): what is known of the device, as JSON.
void announce(World &world, const std::string &about);

/// Gives a receiver or transmitter that is new what the system's defaults say.
void applyDefaults(World &world, const Device &device);

} // namespace zelsim

#endif // ZEL_SIM_RULES_REDISCOVERY_H_
