// SPDX-License-Identifier: MIT
#include "WUsrRole.h"

const WComboBoxPlus::Triplet WUsrRole::sLookup[] = {
    {"user", "[RSnnn]User", 1},
    {"admin", "[RSnnn]Administrator", 2},
};
