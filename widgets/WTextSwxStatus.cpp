// SPDX-License-Identifier: MIT
#include "WTextSwxStatus.h"

#include "Db.h"

WTextSwxStatus::WTextSwxStatus(Wt::WContainerWidget *parent) : WTextDerived(&Db::getSwxOverallStatus, parent)
{
}
