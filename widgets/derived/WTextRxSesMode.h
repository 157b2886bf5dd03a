// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_SES_MODE_H_
#define WIDGETS_WTEXT_RX_SES_MODE_H_

#include "WTextDerived.h"

/// Whether the sessions at receivers are shared or private.
class WTextRxSesMode : public WTextDerived
{
public:
  explicit WTextRxSesMode(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSessionModeFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_SES_MODE_H_
