// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WWAKE_ON_CONNECT_KEY_CODE_H_
#define WIDGETS_WWAKE_ON_CONNECT_KEY_CODE_H_

#include "WLookup.h"

/// The key that wakes a computer, among the usual ones. Its owner translates between the choice and a key
/// code.
class WWakeOnConnectKeyCode : public WLookup<WWakeOnConnectKeyCode>
{
public:
  using WLookup::WLookup;

  /// Selects the item of a key code, and takes the blank item away. Left Control is 224, Left Alt 225, Left
  /// Shift 226 and Caps Lock 130, which is not the numbering of WKeyCodeSelector.
  void showValue(unsigned int keyCode);
  bool customIsSelected() const { return currentIndex() == 4; }
  /// Selects the blank item: records differ.
  void showConflict() { showBlank(); }

  static const Triplet sLookup[5];
};

#endif // WIDGETS_WWAKE_ON_CONNECT_KEY_CODE_H_
