// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE1_H_
#define VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE1_H_

#include "WSettingsTable.h"

/// How receivers log in and connect by themselves, and what they admit.
class WDevViewRxSettingsTable1 : public WSettingsTable
{
public:
  explicit WDevViewRxSettingsTable1(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE1_H_
