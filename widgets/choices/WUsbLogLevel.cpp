// SPDX-License-Identifier: MIT
#include "WUsbLogLevel.h"

#include "Text.h"

const WComboBoxPlus::Triplet WUsbLogLevel::sLookup[] = {
    {"none", wholeKey("rx.setting.usbLogLevel.none"), 0},
    {"info", wholeKey("rx.setting.usbLogLevel.info"), 1},
    {"debug", wholeKey("rx.setting.usbLogLevel.debug"), 2},
};
