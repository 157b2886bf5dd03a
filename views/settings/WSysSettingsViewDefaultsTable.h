// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWDEFAULTSTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWDEFAULTSTABLE_H_

#include "WSettingsTable.h"

/// What new devices begin with.
class WSysSettingsViewDefaultsTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewDefaultsTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWDEFAULTSTABLE_H_
