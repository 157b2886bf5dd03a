// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WOSD_HOTKEY_FUNC_H_
#define WIDGETS_WOSD_HOTKEY_FUNC_H_

#include "WLookup.h"

/// What a function key does in the on-screen display.
class WOsdHotkeyFunc : public WLookup<WOsdHotkeyFunc>
{
public:
  using WLookup::WLookup;

  /// Selects the entry of a store's value, and takes the blank item away. With an unknown value the selection
  /// stays.
  void showValue(std::string storeValue);
  /// Selects the blank item: records differ.
  void showConflict() { showBlank(); }
  bool isShowingConflict() const { return isShowingBlank(); }

  static const Triplet sLookup[10];
};

#endif // WIDGETS_WOSD_HOTKEY_FUNC_H_
