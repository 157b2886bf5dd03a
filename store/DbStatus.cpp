// SPDX-License-Identifier: MIT
#include "Convert.h"
#include "Db.h"

namespace
{

Info_ConnectionMode connectionModeOf(const std::string &word)
{
  if (word == "private_mode")
    return Info_ConnectionMode_Private;
  if (word == "share_mode")
    return Info_ConnectionMode_Share;
  return static_cast<Info_ConnectionMode>(0);
}

unsigned int readDeviceStatus(const char *resource, unsigned int index, Info_DeviceStatus &status,
                              Info_DeviceUpgradeStatus &upgradeStatus, Info_DeviceUsage &usage,
                              Db::Errors &errors)
{
  std::string word;
  if (Db_db.readString(resource, index, "status", word, errors))
    return 1;
  status = Convert_deviceStatusStringToEnum(word.c_str());
  word.clear();
  if (Db_db.readString(resource, index, "upgradeStatus", word, errors))
    return 1;
  upgradeStatus = Convert_deviceUpgradeStatusStringToEnum(word.c_str());
  word.clear();
  if (Db_db.readString(resource, index, "usage", word, errors))
    return 1;
  usage = Convert_deviceUsageStringToEnum(word.c_str());
  return 0;
}

} // namespace

unsigned int Db::getRxStatus(unsigned int rxIndex, Info_DeviceStatus &status,
                             Info_DeviceUpgradeStatus &upgradeStatus, Info_DeviceUsage &usage,
                             bool &userIsLoggedIn, Errors &errors)
{
  if (readDeviceStatus("rx", rxIndex, status, upgradeStatus, usage, errors))
    return 1;
  // Nobody logged in is an answer, not a failure.
  unsigned int userIndex = 0;
  getLoggedInUserIndexFromRxIndex(rxIndex, userIndex, errors);
  userIsLoggedIn = userIndex != 0;
  return 0;
}

unsigned int Db::getTxStatus(unsigned int txIndex, Info_DeviceStatus &status,
                             Info_DeviceUpgradeStatus &upgradeStatus, Info_DeviceUsage &usage,
                             bool &isConnected, Info_ConnectionMode &mode, Errors &errors)
{
  if (readDeviceStatus("tx", txIndex, status, upgradeStatus, usage, errors))
    return 1;
  unsigned int connectionIndex = 0;
  isConnected = findIndexOfUInt32Key("connection", "txIndex", txIndex, connectionIndex, errors) == 0;
  if (!isConnected)
    return 0;
  std::string word;
  const unsigned int result = readString("connection", connectionIndex, "mode", word, errors);
  mode = connectionModeOf(word);
  return result;
}

unsigned int Db::getSwxStatus(unsigned int swxIndex, Info_SwxStatus &status,
                              Info_DeviceUpgradeStatus &upgradeStatus, Info_SwxUsage &usage, Errors &errors)
{
  std::string word;
  if (readString("swx", swxIndex, "status", word, errors))
    return 1;
  status = Convert_swxStatusStringToEnum(word.c_str());
  word.clear();
  if (readString("swx", swxIndex, "upgradeStatus", word, errors))
    return 1;
  upgradeStatus = Convert_deviceUpgradeStatusStringToEnum(word.c_str());
  word.clear();
  if (readString("swx", swxIndex, "usage", word, errors))
    return 1;
  usage = Convert_swxUsageStringToEnum(word.c_str());
  return 0;
}
