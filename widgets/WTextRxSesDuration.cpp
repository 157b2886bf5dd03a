// SPDX-License-Identifier: MIT
#include "WTextRxSesDuration.h"

#include "Db.h"

WTextRxSesDuration::WTextRxSesDuration(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSessionDurationFromRxIndex, parent)
{
}
