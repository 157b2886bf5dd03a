// SPDX-License-Identifier: MIT
#include "WTextRxSwxPort.h"

#include "Db.h"

WTextRxSwxPort::WTextRxSwxPort(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSwxIndexAndPortIndexFromRxIndex, parent)
{
}
