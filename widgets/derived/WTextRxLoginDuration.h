// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_LOGIN_DURATION_H_
#define WIDGETS_WTEXT_RX_LOGIN_DURATION_H_

#include "WTextDerived.h"

/// For how long users have been logged in at receivers.
class WTextRxLoginDuration : public WTextDerived
{
public:
  explicit WTextRxLoginDuration(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getLoginDurationFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_LOGIN_DURATION_H_
