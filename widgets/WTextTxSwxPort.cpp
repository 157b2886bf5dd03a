// SPDX-License-Identifier: MIT
#include "WTextTxSwxPort.h"

#include "Db.h"

WTextTxSwxPort::WTextTxSwxPort(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSwxIndexAndPortIndexFromTxIndex, parent)
{
}
