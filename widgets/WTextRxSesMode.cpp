// SPDX-License-Identifier: MIT
#include "WTextRxSesMode.h"

#include "Db.h"

WTextRxSesMode::WTextRxSesMode(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getSessionModeFromRxIndex, parent)
{
}
