// SPDX-License-Identifier: MIT
#ifndef ZEL_SIM_RULES_RULE_BOOK_H_
#define ZEL_SIM_RULES_RULE_BOOK_H_

#include "life/World.h"

namespace zelsim
{

/// The chapters of the rule book; each is one source file. registerRules() calls them all.
void registerFormRules(Rules &rules);
void registerAdminRules(Rules &rules);
void registerUserRules(Rules &rules);
void registerSessionRules(Rules &rules);
void registerAlertRules(Rules &rules);
void registerDeviceRules(Rules &rules);
void registerUpgradeRules(Rules &rules);
void registerMonitorRules(Rules &rules);
void registerFlashRules(Rules &rules);
void registerCascadeRules(Rules &rules);
void registerManagementRules(Rules &rules);
void registerNetworkRules(Rules &rules);
void registerSettingsRules(Rules &rules);
void registerDiagnostics(Rules &rules);

} // namespace zelsim

#endif // ZEL_SIM_RULES_RULE_BOOK_H_
