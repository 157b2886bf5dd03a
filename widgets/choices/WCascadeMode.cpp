// SPDX-License-Identifier: MIT
#include "WCascadeMode.h"

const WComboBoxPlus::Triplet WCascadeMode::sLookup[] = {
    {"master", "[RSnnn]Switch is a cascade master", 1},
    {"slave", "[RSnnn]Switch is a cascade slave", 2},
};
