// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_TX_STATUS_H_
#define WIDGETS_WTEXT_TX_STATUS_H_

#include "WTextDerived.h"

/// The overall status of transmitters.
class WTextTxStatus : public WTextDerived
{
public:
  explicit WTextTxStatus(Wt::WContainerWidget *parent = 0) : WTextDerived(&Db::getTxOverallStatus, parent) {}
};

#endif // WIDGETS_WTEXT_TX_STATUS_H_
