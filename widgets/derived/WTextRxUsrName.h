// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_USR_NAME_H_
#define WIDGETS_WTEXT_RX_USR_NAME_H_

#include "WTextDerived.h"

/// Who is logged in at receivers.
class WTextRxUsrName : public WTextDerived
{
public:
  explicit WTextRxUsrName(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getLoggedInUsernameFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_USR_NAME_H_
