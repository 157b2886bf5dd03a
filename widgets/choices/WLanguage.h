// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WLANGUAGE_H_
#define WIDGETS_WLANGUAGE_H_

#include "WLookup.h"

/// A language of the on-screen display. The codes mean nothing.
class WLanguage : public WLookup<WLanguage>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[9];
};

#endif // WIDGETS_WLANGUAGE_H_
