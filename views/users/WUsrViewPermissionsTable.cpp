// SPDX-License-Identifier: MIT
#include "WUsrViewPermissionsTable.h"

#include "Text.h"
#include "WAccessMode.h"
#include "WUsbMode.h"
#include "WUsrRole.h"

WUsrViewPermissionsTable::WUsrViewPermissionsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("user", WritesFieldwise, {text("Setting"), text("Value")}, parent)
{
  setFieldWidth(257);
  role = add<WUsrRole>(text("Role"), "role", tr("tt.usr.perm.role"));
  accessMode = add<WAccessMode>(text("Access Mode"), "modeAllowed", tr("tt.usr.perm.accessMode"));
  add<WUsbMode>(text("USB Mode"), "usbMode", tr("tt.usr.perm.usbMode"));
  role->changed().connect(this, &WUsrViewPermissionsTable::userRoleChangedHandler);
}

void WUsrViewPermissionsTable::userRoleChangedHandler()
{
  if (role->currentIndex() != 1)
    return;
  accessMode->setCurrentIndex(2);
  accessMode->contentChangedHandler();
}
