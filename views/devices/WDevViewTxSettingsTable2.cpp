// SPDX-License-Identifier: MIT
#include "WDevViewTxSettingsTable2.h"

#include "Text.h"
#include "WAccessMode.h"
#include "WEnableDisable.h"
#include "WTrafficPriority.h"

WDevViewTxSettingsTable2::WDevViewTxSettingsTable2(Wt::WContainerWidget *parent)
    : WSettingsTable("tx", ReadsAtOnce, {text("Setting"), text("Value")}, parent)
{
  add<WAccessMode>(text("Allowed Access"), "modeAllowed", tr("tt.dev.tx.setting.accessMode"));
  add<WTrafficPriority>(text("Traffic Priority"), "trafficSetting", tr("tt.dev.tx.setting.trafficPriority"));
  add<WEnableDisable>(text("Audio Output"), "audioControl", tr("tt.dev.tx.setting.audioEnable"));
  add<WEnableDisable>(text("Microphone Input"), "microphoneControl", tr("tt.dev.tx.setting.micEnable"));
}
