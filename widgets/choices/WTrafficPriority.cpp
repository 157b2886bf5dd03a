// SPDX-License-Identifier: MIT
#include "WTrafficPriority.h"

const WComboBoxPlus::Triplet WTrafficPriority::sLookup[] = {
    {"usb_priority", "[RSnnn]USB", 1},
    {"video_priority", "[RSnnn]Video", 2},
};
