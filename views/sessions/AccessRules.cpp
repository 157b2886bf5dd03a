// SPDX-License-Identifier: MIT
#include "AccessRules.h"

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

bool AccessRules_inService(Info_DeviceStatus status, Info_DeviceUsage usage,
                           Info_DeviceUpgradeStatus upgradeStatus)
{
  return status == Info_DeviceStatus_Ready && usage == Info_DeviceUsage_Usable &&
         upgradeStatus != Info_DeviceUpgradeStatus_Upgrading;
}
