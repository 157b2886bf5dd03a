// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WUSB_MODE_H_
#define WIDGETS_WUSB_MODE_H_

#include "WLookup.h"

/// The USB devices that a receiver admits.
class WUsbMode : public WLookup<WUsbMode>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[4];
};

#endif // WIDGETS_WUSB_MODE_H_
