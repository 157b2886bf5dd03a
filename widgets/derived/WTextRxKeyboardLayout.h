// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_KEYBOARD_LAYOUT_H_
#define WIDGETS_WTEXT_RX_KEYBOARD_LAYOUT_H_

#include "WTextDerived.h"

/// The keyboard layout of receivers, in the store's word.
class WTextRxKeyboardLayout : public WTextDerived
{
public:
  explicit WTextRxKeyboardLayout(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getKeyboardLayoutFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_KEYBOARD_LAYOUT_H_
