// SPDX-License-Identifier: MIT
#include "WTextTxSwxName.h"

#include "Db.h"

WTextTxSwxName::WTextTxSwxName(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSwxNameFromTxIndex, parent)
{
}
