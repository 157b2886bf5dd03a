// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWTXATTRIBSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWTXATTRIBSTABLE_H_

#include "WSettingsTable.h"

/// What transmitters are called, where they stand, and what else there is to say of them.
class WDevViewTxAttribsTable : public WSettingsTable
{
public:
  explicit WDevViewTxAttribsTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWTXATTRIBSTABLE_H_
