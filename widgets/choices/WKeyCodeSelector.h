// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WKEY_CODE_SELECTOR_H_
#define WIDGETS_WKEY_CODE_SELECTOR_H_

#include "WComboBoxPlus.h"
#include "WLookup.h"

/// A key of a USB keyboard: the usage codes 0 to 255 but those of Enter, Escape, Tab and Keypad Enter, which
/// cannot be chosen. The code of an item is the usage code.
class WKeyCodeSelector : public WLookup<WKeyCodeSelector, WComboBoxPlus>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[252];
};

#endif // WIDGETS_WKEY_CODE_SELECTOR_H_
