// SPDX-License-Identifier: MIT
#include "WLanguage.h"

const WComboBoxPlus::Triplet WLanguage::sLookup[] = {
    {"en", "[RSnnn]English", 0},
    {"fr", "[RSnnn]French", 0},
    {"it", "[RSnnn]Italian", 0},
    {"de", "[RSnnn]German", 0},
    {"es", "[RSnnn]Spanish", 0},
    {"zh", "[RSnnn]Chinese", 0},
    {"jp", "[RSnnn]Japanese", 0},
    {"ko", "[RSnnn]Korean", 0},
    {"es_las", "[RSnnn]Spanish (Latin America)", 0},
};
