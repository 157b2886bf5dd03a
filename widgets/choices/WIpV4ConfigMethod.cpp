// SPDX-License-Identifier: MIT
#include "WIpV4ConfigMethod.h"

const WComboBoxPlus::Triplet WIpV4ConfigMethod::sLookup[] = {
    {"dhcp", "[RSnnn]DHCP", 1},
    {"dhcp_plus_zeroconf", "[RSnnn]DHCP plus zeroconf", 2},
    {"zeroconf", "[RSnnn]Zeroconf", 3},
    {"static", "[RSnnn]Static", 4},
};
