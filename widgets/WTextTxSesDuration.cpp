// SPDX-License-Identifier: MIT
#include "WTextTxSesDuration.h"

#include "Db.h"

WTextTxSesDuration::WTextTxSesDuration(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSessionDurationFromTxIndex, parent)
{
}
