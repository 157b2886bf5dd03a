// SPDX-License-Identifier: MIT
#include "WAutoConnMode.h"

const WComboBoxPlus::Triplet WAutoConnMode::sLookup[] = {
    {"share_mode", "[RSnnn]Shared", 1},
    {"private_mode", "[RSnnn]Private", 2},
};
