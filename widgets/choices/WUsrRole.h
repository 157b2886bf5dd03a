// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WUSR_ROLE_H_
#define WIDGETS_WUSR_ROLE_H_

#include "WLookup.h"

/// The role of a user.
class WUsrRole : public WLookup<WUsrRole>
{
public:
  using WLookup::WLookup;

  static const Triplet sLookup[2];
};

#endif // WIDGETS_WUSR_ROLE_H_
