// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_FACTORY_DEFAULTS_H_
#define ZEL_SIM_RULES_FACTORY_DEFAULTS_H_

#include "rules/Device.h"

namespace zelsim
{

/// Puts a device's settings back to what it was delivered with. For this switch, that is the whole system:
/// the accounts, except an administrator without a password of its own, and all customizations are lost.
/// `keepNetwork` spares a switch's network settings.
void restoreFactoryDefaults(World &world, const Device &device, bool keepNetwork);

} // namespace zelsim

#endif // ZEL_SIM_RULES_FACTORY_DEFAULTS_H_
