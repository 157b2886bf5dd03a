// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWRXSTATUSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWRXSTATUSTABLE_H_

#include "WSettingsTable.h"

/// How it stands with receivers.
class WDevViewRxStatusTable : public WSettingsTable
{
public:
  explicit WDevViewRxStatusTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWRXSTATUSTABLE_H_
