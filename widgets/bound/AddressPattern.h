// SPDX-License-Identifier: MIT
#ifndef WIDGETS_ADDRESS_PATTERN_H_
#define WIDGETS_ADDRESS_PATTERN_H_

#include <string>

/// Regular expressions of the addresses of hosts. Each is anchored on both sides, so that several can be
/// joined as alternatives.

std::string AddressPattern_ipV4();
/// The last two groups may be an IPv4 address, in which any character may stand for a dot.
std::string AddressPattern_ipV6();
/// Two labels or more with dots between them.
std::string AddressPattern_hostName();

#endif // WIDGETS_ADDRESS_PATTERN_H_
