// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_CASCADE_MODE_H_
#define WIDGETS_WTEXT_CASCADE_MODE_H_

#include "WCascadeMode.h"
#include "WTextLookup.h"

/// Shows whether a switch is the master of a cascade. Switches that differ count as a slave.
/// After a bulk read it shows the store's word instead.
class WTextCascadeMode : public WTextLookup<WCascadeMode>
{
public:
  using WTextLookup::WTextLookup;
};

#endif // WIDGETS_WTEXT_CASCADE_MODE_H_
