// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_SES_DURATION_H_
#define WIDGETS_WTEXT_RX_SES_DURATION_H_

#include "WTextDerived.h"

/// For how long receivers have been in a session.
class WTextRxSesDuration : public WTextDerived
{
public:
  explicit WTextRxSesDuration(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSessionDurationFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_SES_DURATION_H_
