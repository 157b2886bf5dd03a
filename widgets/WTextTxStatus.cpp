// SPDX-License-Identifier: MIT
#include "WTextTxStatus.h"

#include "Db.h"

WTextTxStatus::WTextTxStatus(Wt::WContainerWidget *parent) : WTextDerived(&Db::getTxOverallStatus, parent) {}
