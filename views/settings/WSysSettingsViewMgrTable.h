// SPDX-License-Identifier: MIT
#ifndef VIEWS_SETTINGS_WSYSSETTINGSVIEWMGRTABLE_H_
#define VIEWS_SETTINGS_WSYSSETTINGSVIEWMGRTABLE_H_

#include "WSettingsTable.h"

class WManagementMode;

/// Whether the system is managed, by whom, and how it stands with the managers.
class WSysSettingsViewMgrTable : public WSettingsTable
{
public:
  explicit WSysSettingsViewMgrTable(Wt::WContainerWidget *parent = 0);

private:
  WManagementMode *mode;
  bool canLeave;
};

#endif // VIEWS_SETTINGS_WSYSSETTINGSVIEWMGRTABLE_H_
