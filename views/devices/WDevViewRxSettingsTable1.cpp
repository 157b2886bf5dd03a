// SPDX-License-Identifier: MIT
#include "WDevViewRxSettingsTable1.h"

#include "Text.h"
#include "WAccessMode.h"
#include "WAutoConnMode.h"
#include "WEnableDisable.h"
#include "WTargetAny.h"
#include "WUsbMode.h"
#include "WUsr.h"

WDevViewRxSettingsTable1::WDevViewRxSettingsTable1(Wt::WContainerWidget *parent)
    : WSettingsTable("rx", ToleratesErrors, {text("Setting"), text("Value")}, parent)
{
  setFieldWidth(207);
  WEnableDisable *login =
      add<WEnableDisable>(text("Auto Login"), "autoLoginControl", tr("tt.dev.rx.setting.autoLoginEnable"));
  WUsr *user =
      add<WUsr>(text("Auto Login Username"), "autoLoginUserIndex", tr("tt.dev.rx.setting.autoLoginUsr"));
  WEnableDisable *connect = add<WEnableDisable>(text("Auto Connect"), "autoConnectControl",
                                                tr("tt.dev.rx.setting.autoConnectEnable"));
  WTargetAny *target = addField(text("Auto Connect Target"), new WTargetAny(true),
                                tr("tt.dev.rx.setting.autoConnectTarget"), "autoConnectTxEid");
  WAutoConnMode *mode = add<WAutoConnMode>(text("Auto Connect Mode"), "autoConnectMode",
                                           tr("tt.dev.rx.setting.autoConnectMode"));
  add<WUsbMode>(text("USB Mode"), "usbMode", tr("tt.dev.rx.setting.rxUsbMode"));
  add<WEnableDisable>(text("LCD Backlight"), "lcdBacklightControl", tr("tt.dev.rx.setting.lcdBacklight"));
  add<WAccessMode>(text("Allowed Access"), "modeAllowed", tr("tt.dev.rx.setting.accessMode"));
  enableWhile(user, [login] { return login->isChosenEnabled(); });
  enableWhile(target, [connect] { return connect->isChosenEnabled(); });
  enableWhile(mode, [connect] { return connect->isChosenEnabled(); });
  require([=] { return !login->isChosenEnabled() || !user->currentText().empty(); });
  require([=] { return !connect->isChosenEnabled() || !target->currentText().empty(); });
}
