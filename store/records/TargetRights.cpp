// SPDX-License-Identifier: MIT
#include "TargetRights.h"

#include "EventLog.h"
#include "ZelReq.h"
#include "ZelValue.h"

namespace
{

constexpr char kFunction[] = "getUserTxAccessRight"; // whose failures these are in the log

// The rows of a user's list of targets; null, and logged, if they cannot be read.
ZelObject targetsOf(unsigned int userIndex)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return nullptr;
  const ZelResponse response(ZelReq_userTargetListRetrieveByIndex(client, userIndex));
  if (!response) {
    EventLog_write(2, 7, kFunction, "Unable to retrieve user target list.");
    return nullptr;
  }
  ZelObject targets(ZelObj_collapse(response.get(), "index", "target"));
  if (!targets)
    EventLog_write(2, 7, kFunction, "Unable to retrieve target list.");
  return targets;
}

} // namespace

std::optional<TargetRights> TargetRights::read(unsigned int userIndex, Db::Errors &errors)
{
  TargetRights rights;
  if (Db_db.getEnableAllTargetAccessFromUserIndex(userIndex, rights.reachesAll, errors))
    return std::nullopt;
  if (rights.reachesAll)
    return rights;
  const ZelObject targets = targetsOf(userIndex);
  if (!targets)
    return std::nullopt;
  const int rows = ZelRspUtil_numEntries(targets.get());
  for (int row = 0; row < rows; ++row)
    rights.targets.insert(static_cast<unsigned int>(
        ZelRspUtil_getIndexedIntegerParam(targets.get(), static_cast<unsigned int>(row), "txIndex")));
  return rights;
}
