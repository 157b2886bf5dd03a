// SPDX-License-Identifier: MIT
#include "rules/RuleBook.h"

namespace zelsim
{

void registerRules(Rules &rules)
{
  registerFormRules(rules);
  registerAdminRules(rules);
  registerUserRules(rules);
  registerSessionRules(rules);
  registerAlertRules(rules);
  registerDeviceRules(rules);
  registerUpgradeRules(rules);
  registerMonitorRules(rules);
  registerFlashRules(rules);
  registerCascadeRules(rules);
  registerManagementRules(rules);
  registerNetworkRules(rules);
  registerSettingsRules(rules);
  registerDiagnostics(rules);
}

} // namespace zelsim
