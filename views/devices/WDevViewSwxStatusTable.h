// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXSTATUSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXSTATUSTABLE_H_

#include "WSettingsTable.h"

/// How it stands with switches.
class WDevViewSwxStatusTable : public WSettingsTable
{
public:
  explicit WDevViewSwxStatusTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXSTATUSTABLE_H_
