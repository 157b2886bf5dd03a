// SPDX-License-Identifier: MIT
#include "WSysSettingsViewEventsTable.h"

#include "Text.h"
#include "WEnableDisable.h"
#include "WIpAddr.h"

WSysSettingsViewEventsTable::WSysSettingsViewEventsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | ToleratesErrors, {text("Setting"), text("Value")},
                     parent)
{
  add<WIpAddr>(text("Syslog Server IP Address"), "syslogDest", tr("tt.sysSettings.events.syslogDest"));
  bindApart("eventLogControl", "eventLogControl");
  add<WEnableDisable>(text("Log Error Events"), "error", tr("tt.sysSettings.events.enableLoggingError"));
  add<WEnableDisable>(text("Log Warning Events"), "warning",
                      tr("tt.sysSettings.events.enableLoggingWarning"));
  add<WEnableDisable>(text("Log Informational Events"), "info",
                      tr("tt.sysSettings.events.enableLoggingInfo"));
}
