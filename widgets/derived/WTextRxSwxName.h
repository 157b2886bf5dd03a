// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_SWX_NAME_H_
#define WIDGETS_WTEXT_RX_SWX_NAME_H_

#include "WTextDerived.h"

/// The name of the switch at which receivers hang.
class WTextRxSwxName : public WTextDerived
{
public:
  explicit WTextRxSwxName(Wt::WContainerWidget *parent = 0) : WTextDerived(&Db::getSwxNameFromRxIndex, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_RX_SWX_NAME_H_
