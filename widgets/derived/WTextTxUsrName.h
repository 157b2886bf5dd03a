// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_USR_NAME_H_
#define WIDGETS_WTEXT_TX_USR_NAME_H_

#include "WTextDerived.h"

/// Who works with transmitters.
class WTextTxUsrName : public WTextDerived
{
public:
  explicit WTextTxUsrName(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getConnectedUsernameFromTxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_TX_USR_NAME_H_
