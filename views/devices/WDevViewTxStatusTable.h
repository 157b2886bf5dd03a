// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWTXSTATUSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWTXSTATUSTABLE_H_

#include "WSettingsTable.h"

/// How it stands with transmitters.
class WDevViewTxStatusTable : public WSettingsTable
{
public:
  explicit WDevViewTxStatusTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWTXSTATUSTABLE_H_
