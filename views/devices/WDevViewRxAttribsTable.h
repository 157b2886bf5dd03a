// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWRXATTRIBSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWRXATTRIBSTABLE_H_

#include "WSettingsTable.h"

/// What receivers are called, where they stand, and what else there is to say of them.
class WDevViewRxAttribsTable : public WSettingsTable
{
public:
  explicit WDevViewRxAttribsTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWRXATTRIBSTABLE_H_
