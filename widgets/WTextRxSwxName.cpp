// SPDX-License-Identifier: MIT
#include "WTextRxSwxName.h"

#include "Db.h"

WTextRxSwxName::WTextRxSwxName(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSwxNameFromRxIndex, parent)
{
}
