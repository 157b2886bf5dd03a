// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WUSB_LOG_LEVEL_H_
#define WIDGETS_WUSB_LOG_LEVEL_H_

#include "WLookup.h"

/// How much a receiver logs of its USB devices.
class WUsbLogLevel : public WLookup<WUsbLogLevel>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[3];
};

#endif // WIDGETS_WUSB_LOG_LEVEL_H_
