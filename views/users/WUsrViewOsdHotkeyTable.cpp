// SPDX-License-Identifier: MIT
#include "WUsrViewOsdHotkeyTable.h"

#include "Text.h"
#include "WOsdActivateHotkey.h"
#include "WOsdActivateHotkeyCustom.h"

WUsrViewOsdHotkeyTable::WUsrViewOsdHotkeyTable(Wt::WContainerWidget *parent)
    : WSettingsTable("user", ReadsAtOnce, {text("Setting"), text("Value")}, parent)
{
  bindTo("user/keySettings/osdHotKey");
  hotkey = add<WOsdActivateHotkey>(text("OSD Hotkey"), "hotKey", tr("tt.usr.osd.hotkey"));
  bindTo("user/keySettings/osdHotKey/customKeys");
  custom = add<WOsdActivateHotkeyCustom>(text("Custom Sequence"), "customKeys", tr("tt.usr.osd.custom"));
  bindTo("user");
  addNumber(text("OSD Inactivity Timeout (minutes, 0 means never)"), "osdInactivityTimeout",
            tr("tt.usr.osd.inactivityTimeout"), 0, 1440);
  enableWhile(custom, [this] { return isCustom(); });
  require([this] { return !isCustom() || custom->isValid(); });
}

bool WUsrViewOsdHotkeyTable::isCustom() const
{
  return hotkey->currentIndex() == 11;
}

bool WUsrViewOsdHotkeyTable::isAnyValid()
{
  return (isCustom() && custom->isValid()) || WSettingsTable::isAnyValid();
}
