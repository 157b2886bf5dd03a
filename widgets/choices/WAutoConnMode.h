// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WAUTO_CONN_MODE_H_
#define WIDGETS_WAUTO_CONN_MODE_H_

#include "WLookup.h"

/// The mode in which a receiver connects by itself.
class WAutoConnMode : public WLookup<WAutoConnMode>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WAUTO_CONN_MODE_H_
