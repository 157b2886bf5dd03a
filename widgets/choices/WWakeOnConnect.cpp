// SPDX-License-Identifier: MIT
#include "WWakeOnConnect.h"

const WComboBoxPlus::Triplet WWakeOnConnect::sLookup[] = {
    {"none", "[RSnnn]None", 1},
    {"keypress", "[RSnnn]Send keyboard activity", 2},
    {"mouse_move", "[RSnnn]Send mouse activity", 3},
};
