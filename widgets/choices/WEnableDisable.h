// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WENABLE_DISABLE_H_
#define WIDGETS_WENABLE_DISABLE_H_

#include "WLookup.h"

/// Whether something is enabled.
class WEnableDisable : public WLookup<WEnableDisable>
{
public:
  using WLookup::WLookup;

  /// Both are false for the blank item.
  bool isChosenEnabled() const { return currentIndex() == 0; }
  bool isChosenDisabled() const { return currentIndex() == 1; }

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WENABLE_DISABLE_H_
