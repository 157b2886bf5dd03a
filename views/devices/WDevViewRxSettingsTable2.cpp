// SPDX-License-Identifier: MIT
#include "WDevViewRxSettingsTable2.h"

#include "Text.h"
#include "WEnableDisable.h"
#include "WUsbLogLevel.h"

WDevViewRxSettingsTable2::WDevViewRxSettingsTable2(Wt::WContainerWidget *parent)
    : WSettingsTable("rx", ToleratesErrors, {text("Setting"), text("Value")}, parent)
{
  setFieldWidth(207);
  add<WEnableDisable>(text("Video Scaling"), "videoScaling", tr("tt.dev.rx.setting.videoScalingEnable"));
  add<WEnableDisable>(text("Audio Output"), "audioControl", tr("tt.dev.rx.setting.audioEnable"));
  add<WEnableDisable>(text("Microphone"), "microphoneControl", tr("tt.dev.rx.setting.micEnable"));
  add<WEnableDisable>(text("Keyboard Auto Enumeration"), "autoEnumerateKeyboard",
                      tr("tt.dev.rx.setting.kbdAutoEnumerateEnable"));
  add<WEnableDisable>(text("Mouse Auto Enumeration"), "autoEnumerateMouse",
                      tr("tt.dev.rx.setting.mouseAutoEnumerateEnable"));
  addNumber(text("Session Timeout (minutes, 0 means never)"), "sessionInactivityTimeout",
            tr("tt.dev.rx.setting.sessionInactivityTimeout"), 0, 1440);
  addNumber(text("Share Control Timeout (seconds)"), "sharingInactivityTimeout",
            tr("tt.dev.rx.setting.sharingInactivity"), 0, 25);
  add<WUsbLogLevel>(tr("devices.rx.settings.USBLogLevel"), "usbLogLevel",
                    tr("tt.dev.rx.setting.usbLogLevel"));
}
