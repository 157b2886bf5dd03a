// SPDX-License-Identifier: MIT
#ifndef VIEWS_USERS_WUSRVIEWOSDHOTKEYTABLE_H_
#define VIEWS_USERS_WUSRVIEWOSDHOTKEYTABLE_H_

#include "WSettingsTable.h"

class WOsdActivateHotkey;
class WOsdActivateHotkeyCustom;

/// The keys that call up the on-screen display of users, and how long it stays.
class WUsrViewOsdHotkeyTable : public WSettingsTable
{
public:
  explicit WUsrViewOsdHotkeyTable(Wt::WContainerWidget *parent = 0);

  bool isAnyValid() override;

private:
  bool isCustom() const;

  WOsdActivateHotkey *hotkey;
  WOsdActivateHotkeyCustom *custom;
};

#endif // VIEWS_USERS_WUSRVIEWOSDHOTKEYTABLE_H_
