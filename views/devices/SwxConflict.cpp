// SPDX-License-Identifier: MIT
#include "SwxConflict.h"

#include "Db.h"

#include <algorithm>

bool SwxConflict_isAmong(const std::vector<unsigned int> &indexes)
{
  return std::any_of(indexes.begin(), indexes.end(), [](unsigned int index) {
    Info_SwxStatus status = Info_SwxStatus_Offline;
    Info_DeviceUpgradeStatus upgradeStatus = {};
    Info_SwxUsage usage = {};
    Db::Errors dropped;
    return Db_db.getSwxStatus(index, status, upgradeStatus, usage, dropped) != 0 ||
           status == Info_SwxStatus_ConflictIsMaster || status == Info_SwxStatus_ConflictOtherMaster;
  });
}
