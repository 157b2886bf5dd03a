// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWNEVOTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWNEVOTABLE_H_

#include "WSettingsTable.h"

/// How the management interface itself behaves.
class WSysSettingsViewNevoTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewNevoTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWNEVOTABLE_H_
