// SPDX-License-Identifier: MIT
#include "WTextTxSesMode.h"

#include "Db.h"

WTextTxSesMode::WTextTxSesMode(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSessionModeFromTxIndex, parent)
{
}
