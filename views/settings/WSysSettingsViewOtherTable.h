// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWOTHERTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWOTHERTABLE_H_

#include "WSettingsTable.h"

/// Settings of the system that belong nowhere else.
class WSysSettingsViewOtherTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewOtherTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWOTHERTABLE_H_
