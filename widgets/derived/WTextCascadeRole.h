// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_CASCADE_ROLE_H_
#define WIDGETS_WTEXT_CASCADE_ROLE_H_

#include "WCascadeRole.h"
#include "WTextLookup.h"

/// Shows the part that a switch plays in a cascade. Switches that differ count as a backup.
/// After a bulk read it shows the store's word instead.
class WTextCascadeRole : public WTextLookup<WCascadeRole>
{
public:
  using WTextLookup::WTextLookup;
};

#endif // WIDGETS_WTEXT_CASCADE_ROLE_H_
