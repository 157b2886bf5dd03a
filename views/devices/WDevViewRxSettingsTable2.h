// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE2_H_
#define VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE2_H_

#include "WSettingsTable.h"

/// What receivers do with picture, sound and USB, and how long they wait.
class WDevViewRxSettingsTable2 : public WSettingsTable
{
public:
  explicit WDevViewRxSettingsTable2(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWRXSETTINGSTABLE2_H_
