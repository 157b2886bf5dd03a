// SPDX-License-Identifier: MIT
// Chapters of the rule book and of the life that are still being written; each definition elsewhere takes
// the place of the weak one here, and the last of them takes this file with it.
#include "control/Commands.h"
#include "rules/RuleBook.h"

#define NEVO_PENDING __attribute__((weak))

namespace zelsim
{

NEVO_PENDING void registerDeviceRules(Rules &) {}
NEVO_PENDING void registerUpgradeRules(Rules &) {}
NEVO_PENDING void registerMonitorRules(Rules &) {}
NEVO_PENDING void registerFlashRules(Rules &) {}
NEVO_PENDING void registerCascadeRules(Rules &) {}
NEVO_PENDING void registerManagementRules(Rules &) {}
NEVO_PENDING void registerNetworkRules(Rules &) {}
NEVO_PENDING void registerSettingsRules(Rules &) {}
NEVO_PENDING void registerDiagnostics(Rules &) {}
NEVO_PENDING void startStory(World &) {}
NEVO_PENDING void addLifeCommands(Commands &) {}

} // namespace zelsim
