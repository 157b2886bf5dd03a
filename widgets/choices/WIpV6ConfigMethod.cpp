// SPDX-License-Identifier: MIT
#include "WIpV6ConfigMethod.h"

#include "Text.h"

const WComboBoxPlus::Triplet WIpV6ConfigMethod::sLookup[] = {
    {"dhcp", wholeKey("devices.ipv6.configmethod.dhcp"), 2},
    {"dhcp_info_only", wholeKey("devices.ipv6.configmethod.dhcp_info_only"), 3},
    {"stateless_only", wholeKey("devices.ipv6.configmethod.stateless_only"), 1},
    {"static", wholeKey("devices.ipv6.configmethod.static"), 4},
};
