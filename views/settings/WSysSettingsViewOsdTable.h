// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWOSDTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWOSDTABLE_H_

#include "WSettingsTable.h"

/// The on-screen display of all receivers.
class WSysSettingsViewOsdTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewOsdTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWOSDTABLE_H_
