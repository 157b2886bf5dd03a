// SPDX-License-Identifier: MIT
#include "WDevViewTxSettingsTable1.h"

#include "Text.h"
#include "WEnableDisable.h"
#include "WMacAddr.h"
#include "WTxIcon.h"
#include "WUsbMode.h"

WDevViewTxSettingsTable1::WDevViewTxSettingsTable1(Wt::WContainerWidget *parent)
    : WSettingsTable("tx", ToleratesErrors, {text("Setting"), text("Value")}, parent)
{
  add<WTxIcon>(text("Icon"), "iconIndex", tr("tt.dev.tx.setting.iconID"));
  wake = add<WEnableDisable>(text("Wake on LAN"), "wakeOnLan", tr("tt.dev.tx.setting.wakeOnLan"));
  address = add<WMacAddr>(text("Wake on LAN MAC Address"), "wakeOnLanMacAddress",
                          tr("tt.dev.tx.setting.wakeOnLanMacAddress"));
  add<WUsbMode>(text("USB Mode"), "usbMode", tr("tt.dev.tx.setting.txUsbMode"));
  add<WEnableDisable>(text("LCD Backlight"), "lcdBacklightControl", tr("tt.dev.tx.setting.lcdBacklight"));
  enableWhile(address, [this] { return wake->isChosenEnabled(); });
}

bool WDevViewTxSettingsTable1::isAllValid()
{
  return !wake->isChosenEnabled() || address->isValid();
}
