// SPDX-License-Identifier: MIT
#include "Db.h"
#include "OverallStatus.h"
#include "Text.h"

namespace
{

// A percentage that can't be read is shown as 0.
void readPercentage(const char *resource, unsigned int index, DeviceState &state, Db::Errors &errors)
{
  if (OverallStatus_tellsPercentage(state.status, state.upgradeStatus))
    Db_db.readUInt32(resource, index, "upgradePercent", state.upgradePercent, errors);
}

} // namespace

unsigned int Db::getRxOverallStatus(unsigned int rxIndex, std::string &overall, Errors &errors)
{
  DeviceState state;
  bool userIsLoggedIn = false;
  overall = text("Unknown").toUTF8();
  if (getRxStatus(rxIndex, state.status, state.upgradeStatus, state.usage, userIsLoggedIn, errors))
    return 1;
  readPercentage("rx", rxIndex, state, errors);
  overall = OverallStatus_ofReceiver(state, userIsLoggedIn);
  return 0;
}

unsigned int Db::getTxOverallStatus(unsigned int txIndex, std::string &overall, Errors &errors)
{
  DeviceState state;
  bool isConnected = false;
  auto mode = static_cast<Info_ConnectionMode>(0);
  overall = text("Unknown").toUTF8();
  if (getTxStatus(txIndex, state.status, state.upgradeStatus, state.usage, isConnected, mode, errors))
    return 1;
  readPercentage("tx", txIndex, state, errors);
  overall = OverallStatus_ofTransmitter(state, isConnected, mode);
  return 0;
}

unsigned int Db::getSwxOverallStatus(unsigned int swxIndex, std::string &overall, Errors &errors)
{
  auto status = Info_SwxStatus_Offline;
  auto upgradeStatus = Info_DeviceUpgradeStatus_Idle;
  auto usage = Info_SwxUsage_Usable;
  overall = text("Unknown").toUTF8();
  if (getSwxStatus(swxIndex, status, upgradeStatus, usage, errors))
    return 1;
  overall = OverallStatus_ofSwitch(status, upgradeStatus, usage);
  return 0;
}
