// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_SES_MODE_H_
#define WIDGETS_WTEXT_TX_SES_MODE_H_

#include "WTextDerived.h"

/// Whether the sessions with transmitters are shared or private.
class WTextTxSesMode : public WTextDerived
{
public:
  explicit WTextTxSesMode(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSessionModeFromTxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_TX_SES_MODE_H_
