// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_RX_STATUS_H_
#define WIDGETS_WTEXT_RX_STATUS_H_

#include "WTextDerived.h"

/// The overall status of receivers.
class WTextRxStatus : public WTextDerived
{
public:
  explicit WTextRxStatus(Wt::WContainerWidget *parent = 0) : WTextDerived(&Db::getRxOverallStatus, parent) {}
};

#endif // WIDGETS_WTEXT_RX_STATUS_H_
