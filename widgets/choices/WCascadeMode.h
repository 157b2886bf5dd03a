// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCASCADE_MODE_H_
#define WIDGETS_WCASCADE_MODE_H_

#include "WLookup.h"

/// The part of a switch in a cascade, as an administrator sets it.
class WCascadeMode : public WLookup<WCascadeMode>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WCASCADE_MODE_H_
