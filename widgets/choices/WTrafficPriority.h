// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTRAFFIC_PRIORITY_H_
#define WIDGETS_WTRAFFIC_PRIORITY_H_

#include "WLookup.h"

/// Which traffic goes first where a link is full.
class WTrafficPriority : public WLookup<WTrafficPriority>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WTRAFFIC_PRIORITY_H_
