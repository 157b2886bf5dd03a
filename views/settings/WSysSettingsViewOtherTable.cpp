// SPDX-License-Identifier: MIT
#include "WSysSettingsViewOtherTable.h"

#include "Text.h"
#include "WEnableDisable.h"

WSysSettingsViewOtherTable::WSysSettingsViewOtherTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | WritesFieldwise | ToleratesErrors,
                     {text("Item"), text("Value")}, parent)
{
  add<WEnableDisable>(text("Automatic Device Reboot After Firmware Update"), "resetAfterUpgrade",
                      tr("tt.sysSettings.other.autoRebootControl"));
  addNumber(text("Default Time to Flash LCD Backlight (seconds)"), "backlightFlashDuration",
            tr("tt.sysSettings.other.backlightFlashDuration"), 1, 86400);
}
