// SPDX-License-Identifier: MIT
#include "WManagedViewSwxModeTable.h"

#include "Db.h"
#include "Text.h"
#include "WEid.h"
#include "WIpAddr.h"
#include "WManagementMode.h"
#include "WMgrCommStatus.h"
#include "WSwxCombinedMode.h"
#include "WTextManagerServer.h"

WManagedViewSwxModeTable::WManagedViewSwxModeTable(Wt::WContainerWidget *parent)
    : WSettingsTable("systemGlobals", SingleRecord | WritesFieldwise, {text("Item"), text("Value")}, parent),
      managementMode(0), combinedMode(0), isController(Db_db.thisSwxIsCascadeController()),
      isBackup(Db_db.thisSwxIsBackupCascadeController())
{
  addMode();
  addMasterEid();
  if (isController)
    addManagers();
}

void WManagedViewSwxModeTable::addMode()
{
  if (!isController) {
    combinedMode = addField(text("Mode"), new WSwxCombinedMode(), Wt::WString());
    combinedMode->disable();
    return;
  }
  managementMode =
      addField(text("Mode"), new WManagementMode("systemGlobals", "managedSetting"), Wt::WString());
  managementMode->setEnabled(Db_db.thisSwxIsMaster());
  addNumber(text("Switch API Server TCP Port"), "switchApiPort", Wt::WString(), 0, 65535, false);
  addNumber(text("Switch API Client TCP Port"), "managerApiPort", Wt::WString(), 0, 65535, false);
}

void WManagedViewSwxModeTable::addMasterEid()
{
  if (isController || isBackup || Db_db.thisSwxIsMaster()) {
    masterEid = addReadOnly<WEid>(text("Master Switch EID"), "masterSwitchEid");
  } else {
    masterEid = add<WEid>(text("Master Switch EID"), "masterSwitchEid");
    writeFirst(masterEid);
  }
}

void WManagedViewSwxModeTable::addManagers()
{
  const auto read = [](WMgrCommStatus &status, Indexes &) {
    status.readFromDatabase();
    return false;
  };
  addReadOnly<WIpAddr>(text("Primary Manager IP Address"), "managerIpAddress");
  addReadOnly<WIpAddr>(text("Auxiliary Manager IP Address"), "auxiliaryManagerIpAddress");
  addReader(text("Primary Manager Communication"), new WMgrCommStatus(WMgrCommStatus::Primary), read);
  addReader(text("Auxiliary Manager Communication"), new WMgrCommStatus(WMgrCommStatus::Auxiliary), read);
  addReadOnly<WTextManagerServer>(tr("managed.preferred.manager"), "preferredManager");
  addReadOnly<WTextManagerServer>(tr("managed.current.manager"), "currentManager");
}

bool WManagedViewSwxModeTable::isAllValid()
{
  return !isController || masterEid->isValid();
}

bool WManagedViewSwxModeTable::writeToDatabase(std::vector<unsigned int> indexes,
                                               std::vector<std::string> &errors)
{
  const bool failed = WSettingsTable::writeToDatabase(indexes, errors);
  if (combinedMode && !isBackup)
    combinedMode->setEnabled(combinedMode->currentIndex() > 0);
  return failed;
}
