// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWEVENTSTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWEVENTSTABLE_H_

#include "WSettingsTable.h"

/// Where events are logged, by level.
class WSysSettingsViewEventsTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewEventsTable(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWEVENTSTABLE_H_
