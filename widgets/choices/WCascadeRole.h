// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCASCADE_ROLE_H_
#define WIDGETS_WCASCADE_ROLE_H_

#include "WLookup.h"

/// The part of a switch in a cascade, as it stands.
class WCascadeRole : public WLookup<WCascadeRole>
{
public:
  using WLookup::WLookup;

  /// The index of the current item; 0 for the blank one.
  int getSelection() const { return hasChoice() ? currentIndex() : 0; }

  static const Triplet sLookup[4];
};

#endif // WIDGETS_WCASCADE_ROLE_H_
