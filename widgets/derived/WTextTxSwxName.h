// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_SWX_NAME_H_
#define WIDGETS_WTEXT_TX_SWX_NAME_H_

#include "WTextDerived.h"

/// The name of the switch at which transmitters hang.
class WTextTxSwxName : public WTextDerived
{
public:
  explicit WTextTxSwxName(Wt::WContainerWidget *parent = 0) : WTextDerived(&Db::getSwxNameFromTxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_TX_SWX_NAME_H_
