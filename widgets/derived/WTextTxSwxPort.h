// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_SWX_PORT_H_
#define WIDGETS_WTEXT_TX_SWX_PORT_H_

#include "WTextDerived.h"

/// The port of the switch at which transmitters hang; 0 for one that no switch knows.
class WTextTxSwxPort : public WTextDerived
{
public:
  explicit WTextTxSwxPort(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSwxIndexAndPortIndexFromTxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_TX_SWX_PORT_H_
