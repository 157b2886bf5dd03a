// SPDX-License-Identifier: MIT
#include "WEstabSesTxTable.h"

#include "AccessRules.h"
#include "Db.h"
#include "Text.h"

namespace
{

bool userMayReach(unsigned int userIndex, unsigned int txIndex)
{
  bool allowed = false;
  Db::Errors errors;
  if (Db_db.getUserTxAccessRight(userIndex, txIndex, allowed, errors) == 0)
    return allowed;
  Db_db.logZelErrors(errors);
  return false;
}

/// Whether a transmitter in a session of mode `present` can be joined in a session of mode `wanted`.
bool canBeJoined(Info_ConnectionMode present, Info_ConnectionMode wanted)
{
  return present != Info_ConnectionMode_Private &&
         !(present == Info_ConnectionMode_Share && wanted == Info_ConnectionMode_Private);
}

bool isFreeFor(Info_ConnectionMode mode, unsigned int txIndex)
{
  Info_DeviceStatus status = Info_DeviceStatus_Offline;
  Info_DeviceUpgradeStatus upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  Info_DeviceUsage usage = Info_DeviceUsage_Usable;
  bool isConnected = false;
  Info_ConnectionMode present = Info_ConnectionMode_Share;
  Db::Errors errors;
  return Db_db.getTxStatus(txIndex, status, upgradeStatus, usage, isConnected, present, errors) == 0 &&
         AccessRules_inService(status, usage, upgradeStatus) && (!isConnected || canBeJoined(present, mode));
}

} // namespace

WEstabSesTxTable::WEstabSesTxTable(Wt::WContainerWidget *parent)
    : WEstabSesDeviceTable(text("Transmitter EID"), text("Transmitter Name"), parent)
{
}

bool WEstabSesTxTable::readFromDatabase(Info_ConnectionMode mode, unsigned int userIndex,
                                        unsigned int rxIndex)
{
  clearData();
  std::string userMode, rxMode;
  Db::Errors errors;
  if (Db_db.getAllowedAccessModeFromUserIndex(userIndex, userMode, errors) != 0 ||
      Db_db.readString("rx", rxIndex, "modeAllowed", rxMode, errors) != 0)
    return true;
  const bool sessionCanBe = (mode == Info_ConnectionMode_Share || mode == Info_ConnectionMode_Private) &&
                            AccessRules_isMode(rxMode) && AccessRules_isMode(userMode);
  const Info_AccessMode sessionMode = static_cast<Info_AccessMode>(mode);
  // What the receiver allows is not held against what the transmitter allows.
  return addDevices("tx", [&](const Device &tx) {
    return sessionCanBe && !AccessRules_clash(userMode, tx.modeAllowed) &&
           userMayReach(userIndex, tx.index) && AccessRules_admits(sessionMode, tx.modeAllowed) &&
           isFreeFor(mode, tx.index);
  });
}

void WEstabSesTxTable::clearData()
{
  removeAllRecords();
}
