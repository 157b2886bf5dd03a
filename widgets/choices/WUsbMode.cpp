// SPDX-License-Identifier: MIT
#include "WUsbMode.h"

const WComboBoxPlus::Triplet WUsbMode::sLookup[] = {
    {"disabled", "[RSnnn]Disabled", 1},
    {"keyboard_mouse_only", "[RSnnn]Keyboard and mouse only", 2},
    {"all_except_mass_storage", "[RSnnn]All devices except mass storage", 3},
    {"all_devices", "[RSnnn]All devices", 4},
};
