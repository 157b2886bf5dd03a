// SPDX-License-Identifier: MIT
#include "WTextRxLoginDuration.h"

#include "Db.h"

WTextRxLoginDuration::WTextRxLoginDuration(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getLoginDurationFromRxIndex, parent)
{
}
