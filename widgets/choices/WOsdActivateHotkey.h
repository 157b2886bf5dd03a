// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WOSD_ACTIVATE_HOTKEY_H_
#define WIDGETS_WOSD_ACTIVATE_HOTKEY_H_

#include "WLookup.h"

/// The keys that open the on-screen display.
class WOsdActivateHotkey : public WLookup<WOsdActivateHotkey>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[13];
};

#endif // WIDGETS_WOSD_ACTIVATE_HOTKEY_H_
