// SPDX-License-Identifier: MIT
#include "WAccessMode.h"

const WComboBoxPlus::Triplet WAccessMode::sLookup[] = {
    {"share_mode", "[RSnnn]Shared only", 1},
    {"private_mode", "[RSnnn]Private only", 2},
    {"share_or_private_mode", "[RSnnn]Private or shared", 3},
};
