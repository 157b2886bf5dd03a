// SPDX-License-Identifier: MIT
#include "WSesMode.h"

const WComboBoxPlus::Triplet WSesMode::sLookup[] = {
    {"share_mode", "[RSnnn]Shared session", 1},
    {"private_mode", "[RSnnn]Private session", 2},
};
