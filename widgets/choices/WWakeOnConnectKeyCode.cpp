// SPDX-License-Identifier: MIT
#include "WWakeOnConnectKeyCode.h"

const WComboBoxPlus::Triplet WWakeOnConnectKeyCode::sLookup[] = {
    {"", "[RSnnn]Ctrl", 0},      {"", "[RSnnn]Alt", 0},    {"", "[RSnnn]Shift", 0},
    {"", "[RSnnn]Caps Lock", 0}, {"", "[RSnnn]Custom", 0},
};

void WWakeOnConnectKeyCode::showValue(unsigned int keyCode)
{
  removeBlank();
  switch (keyCode) {
  case 224:
    return setCurrentIndex(0);
  case 225:
    return setCurrentIndex(1);
  case 226:
    return setCurrentIndex(2);
  case 130:
    return setCurrentIndex(3);
  default:
    return setCurrentIndex(4);
  }
}
