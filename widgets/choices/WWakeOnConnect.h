// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WWAKE_ON_CONNECT_H_
#define WIDGETS_WWAKE_ON_CONNECT_H_

#include "WLookup.h"

/// How a transmitter wakes its computer when a session begins.
class WWakeOnConnect : public WLookup<WWakeOnConnect>
{
public:
  using WLookup::WLookup;

  bool keyboardWakeIsSelected() { return selection() == "keypress"; }
  bool mouseWakeIsSelected() { return selection() == "mouse_move"; }

  static const Triplet sLookup[3];
};

#endif // WIDGETS_WWAKE_ON_CONNECT_H_
