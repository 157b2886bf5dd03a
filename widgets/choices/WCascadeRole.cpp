// SPDX-License-Identifier: MIT
#include "WCascadeRole.h"

#include "Text.h"

const WComboBoxPlus::Triplet WCascadeRole::sLookup[] = {
    {"not_present", wholeKey("swx.deviceDetails.cascadeRole.not_present"), 0},
    {"controller", wholeKey("swx.deviceDetails.cascadeRole.controller"), 1},
    {"slave", wholeKey("swx.deviceDetails.cascadeRole.slave"), 2},
    {"backup", wholeKey("swx.deviceDetails.cascadeRole.backup"), 3},
};
