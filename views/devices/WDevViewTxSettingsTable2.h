// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE2_H_
#define VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE2_H_

#include "WSettingsTable.h"

/// What transmitters admit and how they send.
class WDevViewTxSettingsTable2 : public WSettingsTable
{
public:
  explicit WDevViewTxSettingsTable2(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE2_H_
