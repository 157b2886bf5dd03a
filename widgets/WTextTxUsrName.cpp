// SPDX-License-Identifier: MIT
#include "WTextTxUsrName.h"

#include "Db.h"

WTextTxUsrName::WTextTxUsrName(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getConnectedUsernameFromTxIndex, parent)
{
}
