// SPDX-License-Identifier: MIT
#include "WSysSettingsViewDefaultsTable.h"

#include "Text.h"
#include "WTrafficPriority.h"
#include "WUsbMode.h"

WSysSettingsViewDefaultsTable::WSysSettingsViewDefaultsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("cfgDefaults", SingleRecord | ToleratesErrors, {text("Item"), text("Value")}, parent)
{
  addNumber(text("OSD Inactivity Timeout (minutes, 0 means never)"), "rxDefaultOsdInactivityTimeout",
            tr("tt.sysSettings.defaults.rxDefaultOsdInactivityTimeout"), 0, 1440);
  addNumber(text("Receiver Session Timeout (minutes, 0 means never)"), "rxDefaultSessionInactivityTimeout",
            tr("tt.sysSettings.defaults.rxDefaultSessionInactivityTimeout"), 0, 1440);
  add<WUsbMode>(text("Transmitter USB Mode"), "txDefaultUsbMode",
                tr("tt.sysSettings.defaults.txDefaultUsbMode"));
  add<WTrafficPriority>(text("Transmitter Traffic Priority"), "txDefaultTrafficPriority",
                        tr("tt.sysSettings.defaults.txDefaultTrafficPriority"));
}
