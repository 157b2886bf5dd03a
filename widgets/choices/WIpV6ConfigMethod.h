// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIP_V6_CONFIG_METHOD_H_
#define WIDGETS_WIP_V6_CONFIG_METHOD_H_

#include "WLookup.h"

/// Where an IPv6 address comes from.
class WIpV6ConfigMethod : public WLookup<WIpV6ConfigMethod>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[4];
};

#endif // WIDGETS_WIP_V6_CONFIG_METHOD_H_
