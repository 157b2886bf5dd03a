// SPDX-License-Identifier: MIT
#include "WOsdHotkeyFunc.h"

const WComboBoxPlus::Triplet WOsdHotkeyFunc::sLookup[] = {
    {"none", "[RSnnn]Do nothing", 1},
    {"connect_last_target", "[RSnnn]Connect to last target", 2},
    {"connect_previous_target", "[RSnnn]Connect to previous target in target list", 3},
    {"connect_next_target", "[RSnnn]Connect to next target in target list", 4},
    {"connect_to_target_x", "[RSnnn]Connect to target X", 5},
    {"logout_and_disconnect", "[RSnnn]Logout of OSD and disconnect session", 6},
    {"enumerate_keyboard", "[RSnnn]Enumerate keyboard", 7},
    {"enumerate_mouse", "[RSnnn]Enumerate mouse", 8},
    {"enumerate_keyboard_and_mouse", "[RSnnn]Enumerate keyboard and mouse", 9},
    {"enumerate_all_usb_devices", "[RSnnn]Enumerate all USB devices", 10},
};

void WOsdHotkeyFunc::showValue(std::string storeValue)
{
  removeBlank();
  const int index = indexOfStoreValue(storeValue);
  if (index >= 0)
    setCurrentIndex(index);
}
