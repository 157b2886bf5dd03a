// SPDX-License-Identifier: MIT
#ifndef VIEWS_USERS_WUSRVIEWPERMISSIONSTABLE_H_
#define VIEWS_USERS_WUSRVIEWPERMISSIONSTABLE_H_

#include "WSettingsTable.h"

class WAccessMode;
class WUsrRole;

/// What users may do.
class WUsrViewPermissionsTable : public WSettingsTable
{
public:
  explicit WUsrViewPermissionsTable(Wt::WContainerWidget *parent = 0);

  /// An administrator may connect in either mode.
  void userRoleChangedHandler();

private:
  WUsrRole *role;
  WAccessMode *accessMode;
};

#endif // VIEWS_USERS_WUSRVIEWPERMISSIONSTABLE_H_
