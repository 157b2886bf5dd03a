// SPDX-License-Identifier: MIT
#include "WEstabSesRxTable.h"

#include "AccessRules.h"
#include "Db.h"
#include "Text.h"

namespace
{

bool isFree(unsigned int rxIndex)
{
  Info_DeviceStatus status = Info_DeviceStatus_Offline;
  Info_DeviceUpgradeStatus upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  Info_DeviceUsage usage = Info_DeviceUsage_Usable;
  bool userIsLoggedIn = false;
  Db::Errors errors;
  return Db_db.getRxStatus(rxIndex, status, upgradeStatus, usage, userIsLoggedIn, errors) == 0 &&
         AccessRules_inService(status, usage, upgradeStatus) && !userIsLoggedIn;
}

} // namespace

WEstabSesRxTable::WEstabSesRxTable(Wt::WContainerWidget *parent)
    : WEstabSesDeviceTable(text("Receiver EID"), text("Receiver Name"), parent)
{
}

bool WEstabSesRxTable::readFromDatabase(Info_AccessMode mode, unsigned int userIndex)
{
  clearData();
  std::string userMode;
  Db::Errors errors;
  if (Db_db.getAllowedAccessModeFromUserIndex(userIndex, userMode, errors) != 0)
    return true;
  const bool sessionCanBe =
      mode >= Info_AccessMode_Share && mode <= Info_AccessMode_ShareOrPrivate && AccessRules_isMode(userMode);
  return addDevices("rx", [&](const Device &rx) {
    return sessionCanBe && AccessRules_isMode(rx.modeAllowed) && AccessRules_admits(mode, rx.modeAllowed) &&
           !AccessRules_clash(userMode, rx.modeAllowed) && isFree(rx.index);
  });
}

void WEstabSesRxTable::clearData()
{
  removeAllRecords();
}
