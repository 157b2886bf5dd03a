// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WIP_V4_CONFIG_METHOD_H_
#define WIDGETS_WIP_V4_CONFIG_METHOD_H_

#include "WLookup.h"

/// Where an IPv4 address comes from.
class WIpV4ConfigMethod : public WLookup<WIpV4ConfigMethod>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[4];
};

#endif // WIDGETS_WIP_V4_CONFIG_METHOD_H_
