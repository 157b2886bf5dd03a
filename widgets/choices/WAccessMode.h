// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WACCESS_MODE_H_
#define WIDGETS_WACCESS_MODE_H_

#include "WLookup.h"

/// The connection modes that a user may choose from.
class WAccessMode : public WLookup<WAccessMode>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[3];
};

#endif // WIDGETS_WACCESS_MODE_H_
