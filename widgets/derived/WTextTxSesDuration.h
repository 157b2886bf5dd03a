// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_SES_DURATION_H_
#define WIDGETS_WTEXT_TX_SES_DURATION_H_

#include "WTextDerived.h"

/// For how long transmitters have been in a session.
class WTextTxSesDuration : public WTextDerived
{
public:
  explicit WTextTxSesDuration(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSessionDurationFromTxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_TX_SES_DURATION_H_
