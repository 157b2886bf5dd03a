// SPDX-License-Identifier: MIT
#include "WTextRxStatus.h"

#include "Db.h"

WTextRxStatus::WTextRxStatus(Wt::WContainerWidget *parent) : WTextDerived(&Db::getRxOverallStatus, parent) {}
