// SPDX-License-Identifier: MIT
#include "AccessRules.h"

namespace
{

const char shareOnly[] = "share_mode";
const char privateOnly[] = "private_mode";
const char shareOrPrivate[] = "share_or_private_mode";

} // namespace

bool AccessRules_isMode(const std::string &allowed)
{
  return allowed == privateOnly || allowed == shareOnly || allowed == shareOrPrivate;
}

bool AccessRules_admits(Info_AccessMode session, const std::string &allowed)
{
  return !(session == Info_AccessMode_Private && allowed == shareOnly) &&
         !(session == Info_AccessMode_Share && allowed == privateOnly);
}

bool AccessRules_clash(const std::string &user, const std::string &device)
{
  return (user == privateOnly && device == shareOnly) || (user == shareOnly && device == privateOnly);
}

bool AccessRules_inService(Info_DeviceStatus status, Info_DeviceUsage usage,
                           Info_DeviceUpgradeStatus upgradeStatus)
{
  return status == Info_DeviceStatus_Ready && usage == Info_DeviceUsage_Usable &&
         upgradeStatus != Info_DeviceUpgradeStatus_Upgrading;
}
