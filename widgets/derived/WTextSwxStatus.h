// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_SWX_STATUS_H_
#define WIDGETS_WTEXT_SWX_STATUS_H_

#include "WTextDerived.h"

/// The overall status of switches.
class WTextSwxStatus : public WTextDerived
{
public:
  explicit WTextSwxStatus(Wt::WContainerWidget *parent = 0) : WTextDerived(&Db::getSwxOverallStatus, parent)
  {
  }
};

#endif // WIDGETS_WTEXT_SWX_STATUS_H_
