// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WSES_MODE_H_
#define WIDGETS_WSES_MODE_H_

#include "WComboBoxPlus.h"
#include "WLookup.h"

/// The mode of a session that is about to begin.
class WSesMode : public WLookup<WSesMode, WComboBoxPlus>
{
public:
  using WLookup::WLookup;

  /// 1 for a shared session, 2 for a private one.
  int getSelection() const { return currentIndex() == 0 ? 1 : 2; }

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WSES_MODE_H_
