// SPDX-License-Identifier: MIT
#include "WSysSettingsViewOsdTable.h"

#include "Text.h"
#include "WEnableDisable.h"
#include "WOsdActivateHotkey.h"
#include "WOsdActivateHotkeyCustom.h"

WSysSettingsViewOsdTable::WSysSettingsViewOsdTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | ToleratesErrors, {text("Setting"), text("Value")},
                     parent)
{
  WOsdActivateHotkey *hotkey = add<WOsdActivateHotkey>(text("Receiver OSD Hotkey"), "rxOsdHotKey",
                                                       tr("tt.sysSettings.osd.rxOsdHotKey"));
  bindTo("systemGlobals/customKeys");
  WOsdActivateHotkeyCustom *custom = add<WOsdActivateHotkeyCustom>(
      text("OSD Hotkey Custom Sequence"), "customKeys", tr("tt.sysSettings.osd.rxOsdHotKeyCustomSeq"));
  bindTo("systemGlobals");
  WEnableDisable *banner = add<WEnableDisable>(text("Receiver OSD Banner"), "rxOsdBannerEnable",
                                               tr("tt.sysSettings.osd.rxOsdBannerEnable"));
  Wt::WWidget *bannerText = addArea(text("OSD Banner Text"), "rxOsdBannerText",
                                    tr("tt.sysSettings.osd.rxOsdBannerText"), "([ -~\n]{0,450})");
  const auto isCustom = [hotkey] { return hotkey->currentIndex() == 11; };
  enableWhile(custom, isCustom);
  enableWhile(bannerText, [banner] { return banner->isChosenEnabled(); });
  require([=] { return !isCustom() || custom->isValid(); });
}
