// SPDX-License-Identifier: MIT
#include "WOsdActivateHotkey.h"

const WComboBoxPlus::Triplet WOsdActivateHotkey::sLookup[] = {
    {"print_screen", "[RSnnn]Print Screen", 1},
    {"control_control", "[RSnnn]Ctrl + Ctrl", 2},
    {"alt_alt", "[RSnnn]Alt + Alt", 5},
    {"shift_shift", "[RSnnn]Shift + Shift", 8},
    {"control_control_left", "[RSnnn]Left Ctrl + Left Ctrl", 3},
    {"control_control_right", "[RSnnn]Right Ctrl + Right Ctrl", 4},
    {"alt_alt_left", "[RSnnn]Left Alt + Left Alt", 6},
    {"alt_alt_right", "[RSnnn]Right Alt + Right Alt", 7},
    {"shift_shift_left", "[RSnnn]Left Shift + Left Shift", 9},
    {"shift_shift_right", "[RSnnn]Right Shift + Right Shift", 10},
    {"scroll_lock_scroll_lock", "[RSnnn]Scroll Lock + Scroll Lock", 11},
    {"custom", "[RSnnn]Custom (1 keycode or 2 codes in sequence)", 12},
    {"none", "[RSnnn]None", 13},
};
