// SPDX-License-Identifier: MIT
#include "WPrefsTable.h"

#include "Text.h"
#include "WEnableDisable.h"

WPrefsTable::WPrefsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("user", WritesFieldwise, {text("Option"), text("Setting")}, parent)
{
  struct Warning {
    const char *labelKey;
    const char *param;
  };
  static const Warning warnings[] = {
      {"[RSnnn]Warn When Logging out with Unsaved Changes", "enableLogoutUnsavedChangesWarning"},
      {"[RSnnn]Warn When Deleting User", "enableDeleteUserWarning"},
      {"[RSnnn]Warn When Forcing a User Logout", "enableLogoutUserWarning"},
      {"[RSnnn]Warn When Disconnecting a Session", "enableDisconnectSessionWarning"},
      {"[RSnnn]Warn When Deleting Monitor", "enableDeleteMonitorWarning"},
      {"[RSnnn]Warn When Clearing Event History", "enableClearEventHistoryWarning"},
      {"[RSnnn]Warn When Restoring Device Factory Defaults", "enableRestoreFactoryDefaultsWarning"},
      {"[RSnnn]Warn When Removing Device(s)", "enableRemoveDevicesWarning"},
      {"[RSnnn]Warn When Removing Offline Device(s)", "enableRemoveOfflineDevicesWarning"},
      {"[RSnnn]Warn When Rebooting Device(s)", "enableResetDevicesWarning"},
  };
  for (const Warning &warning : warnings)
    add<WEnableDisable>(Wt::WString::tr(warning.labelKey), warning.param);
}
