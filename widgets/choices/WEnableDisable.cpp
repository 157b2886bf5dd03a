// SPDX-License-Identifier: MIT
#include "WEnableDisable.h"

const WComboBoxPlus::Triplet WEnableDisable::sLookup[] = {
    {"enabled", "[RSnnn]Enabled", 2},
    {"disabled", "[RSnnn]Disabled", 1},
};
