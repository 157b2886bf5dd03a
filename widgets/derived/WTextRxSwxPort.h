// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_SWX_PORT_H_
#define WIDGETS_WTEXT_RX_SWX_PORT_H_

#include "WTextDerived.h"

/// The port of the switch at which receivers hang; 0 for one that no switch knows.
class WTextRxSwxPort : public WTextDerived
{
public:
  explicit WTextRxSwxPort(Wt::WContainerWidget *parent = 0)
      : WTextDerived(&Db::getSwxIndexAndPortIndexFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_SWX_PORT_H_
