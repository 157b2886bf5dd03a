// SPDX-License-Identifier: MIT
#include "WSysSettingsViewMgrTable.h"

#include "Db.h"
#include "Text.h"
#include "WIpAddr.h"
#include "WManagementMode.h"
#include "WMgrCommStatus.h"
#include "WTextManagerServer.h"

WSysSettingsViewMgrTable::WSysSettingsViewMgrTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | ToleratesErrors, {text("Item"), text("Value")}, parent),
      canLeave(false)
{
  const bool isMaster = Db_db.thisSwxIsMaster();
  const auto read = [](WMgrCommStatus &status, Indexes &) {
    status.readFromDatabase();
    return false;
  };
  mode = addField(tr("SystemSettings.Manager.label.system.mode"),
                  new WManagementMode("systemGlobals", "managedSetting"), Wt::WString());
  addNumber(tr("SystemSettings.Manager.label.server.tcp.port"), "switchApiPort",
            tr("tt.sysSettings.mgr.serverApiPort"), 0, 65535, false);
  addNumber(tr("SystemSettings.Manager.label.client.tcp.port"), "managerApiPort",
            tr("tt.sysSettings.mgr.clientApiPort"), 0, 65535, false);
  addReadOnly<WIpAddr>(tr("SystemSettings.Manager.label.primary.ip.address"), "managerIpAddress");
  addReadOnly<WIpAddr>(tr("SystemSettings.Manager.label.auxiliary.ip.Address"), "auxiliaryManagerIpAddress");
  addReader(tr("SystemSettings.Manager.label.primary.communication"),
            new WMgrCommStatus(WMgrCommStatus::Primary), read);
  addReader(tr("SystemSettings.Manager.label.auxiliary.communication"),
            new WMgrCommStatus(WMgrCommStatus::Auxiliary), read);
  addReadOnly<WTextManagerServer>(tr("SystemSettings.Manager.label.preferred.manager"), "preferredManager");
  addReadOnly<WTextManagerServer>(tr("SystemSettings.Manager.label.current.manager"), "currentManager");
  enableWhile(mode, [this, isMaster] {
    // An edit does not lock the user out of it.
    if (!mode->hasChangedContent())
      canLeave = mode->currentIndex() > 0;
    return isMaster && canLeave;
  });
}
