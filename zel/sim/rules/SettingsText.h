// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_SETTINGS_TEXT_H_
#define ZEL_SIM_RULES_SETTINGS_TEXT_H_

#include "life/World.h"

#include <string>

namespace zelsim
{

/// The configuration of the switch as one JSON text: all settings, accounts, rights, monitors and firmware
/// sources whole, and of the devices, known by their EIDs, what can be set.
std::string settingsText(const World &world);

/// Whether a text can be installed: it says what it is, holds what the catalogue knows within its limits,
/// and has an administrator who can log in.
bool isSettingsText(const std::string &text);

/// Puts the settings of a text, which isSettingsText() has found good, in the place of the present ones.
/// Everybody is logged out.
void installSettings(World &world, const std::string &text);

} // namespace zelsim

#endif // ZEL_SIM_RULES_SETTINGS_TEXT_H_
