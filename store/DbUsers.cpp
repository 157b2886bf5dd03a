// SPDX-License-Identifier: MIT
#include "Convert.h"
#include "Db.h"
#include "DbExchange.h"
#include "TargetRights.h"
#include "ZelRsp.h"

namespace
{

// The index 0 goes out as it is: it is nobody, not everybody.
unsigned int readUser(const char *function, unsigned int userIndex, const char *parameter,
                      ZelResponse &response, Db::Errors &errors)
{
  return DbExchange_read(function, "user", userIndex, parameter, response, errors);
}

} // namespace

unsigned int Db::getUserRoleFromUserIndex(unsigned int userIndex, std::string &role, Errors &errors)
{
  ZelResponse response;
  if (readUser("getUserRoleFromUserIndex", userIndex, "role", response, errors))
    return 1;
  role = Convert_userRoleEnumToString(ZelRsp_userGetRole(response.get()));
  return 0;
}

unsigned int Db::getAllowedAccessModeFromUserIndex(unsigned int userIndex, std::string &mode, Errors &errors)
{
  ZelResponse response;
  if (readUser("getAllowedAccessModeFromUserIndex", userIndex, "modeAllowed", response, errors))
    return 1;
  if (const char *word = ZelRspUtil_getStringParam(response.get(), "modeAllowed"))
    mode = word;
  return 0;
}

unsigned int Db::getEnableAllTargetAccessFromUserIndex(unsigned int userIndex, bool &allTargetAccess,
                                                       Errors &errors)
{
  ZelResponse response;
  if (readUser("getEnableAllTargetAccessFromUserIndex", userIndex, "allTargetAccess", response, errors))
    return 1;
  allTargetAccess = ZelRsp_userGetAllTargetAccess(response.get()) != 0;
  return 0;
}

unsigned int Db::getUserTxAccessRight(unsigned int userIndex, unsigned int txIndex, bool &allowed,
                                      Errors &errors)
{
  allowed = false;
  const std::optional<TargetRights> rights = TargetRights::read(userIndex, errors);
  if (!rights)
    return 1;
  allowed = rights->allow(txIndex);
  return 0;
}
