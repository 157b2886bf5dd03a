// SPDX-License-Identifier: MIT
#include "WTextRxUsrName.h"

#include "Db.h"

WTextRxUsrName::WTextRxUsrName(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getLoggedInUsernameFromRxIndex, parent)
{
}
