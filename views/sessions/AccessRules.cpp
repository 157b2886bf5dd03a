// SPDX-License-Identifier: MIT
#include "AccessRules.h"

#include "Convert.h"
#include "DeviceRecord.h"

namespace
{

const char kShareOnly[] = "share_mode";
const char kPrivateOnly[] = "private_mode";
const char kShareOrPrivate[] = "share_or_private_mode";

} // namespace

bool AccessRules_isMode(const std::string &allowed)
{
  return allowed == kPrivateOnly || allowed == kShareOnly || allowed == kShareOrPrivate;
}

bool AccessRules_admits(Info_AccessMode session, const std::string &allowed)
{
  return !(session == Info_AccessMode_Private && allowed == kShareOnly) &&
         !(session == Info_AccessMode_Share && allowed == kPrivateOnly);
}

bool AccessRules_clash(const std::string &user, const std::string &device)
{
  return (user == kPrivateOnly && device == kShareOnly) || (user == kShareOnly && device == kPrivateOnly);
}

bool AccessRules_inService(const DeviceRecord &device)
{
  return Convert_deviceStatusStringToEnum(device.status.c_str()) == Info_DeviceStatus_Ready &&
         Convert_deviceUsageStringToEnum(device.usage.c_str()) == Info_DeviceUsage_Usable &&
         Convert_deviceUpgradeStatusStringToEnum(device.upgradeStatus.c_str()) !=
             Info_DeviceUpgradeStatus_Upgrading;
}
