// SPDX-License-Identifier: MIT
#include "ZelRsp.h"

#include "ZelRspUtil.h"

#include <cstddef>
#include <cstring>

namespace
{

const char *const kConnectionModes[] = {"share_mode", "private_mode"};
const char *const kAccessModes[] = {"share_mode", "private_mode", "share_or_private_mode"};
const char *const kUserRoles[] = {"user", "admin"};
const char *const kSwxModes[] = {"master", "slave"};
const char *const kSwxStates[] = {
    "offline",     "dc_connected", "conflict_is_master", "conflict_other_master",
    "isc_failure", "ready",        "resetting"};
const char *const kSwxUsages[] = {"usable", "exceeds_unmanaged_capacity", "maintenance"};

// The row's word as its enumeration, whose values count from 1 in the order of `words`; 0 if none.
template <typename Enumeration, std::size_t N>
Enumeration wordOf(const json_t *row, const char *name, const char *const (&words)[N])
{
  const char *text = ZelRspUtil_getStringParam(row, name);
  for (std::size_t i = 0; text && i < N; ++i)
    if (std::strcmp(text, words[i]) == 0)
      return static_cast<Enumeration>(i + 1);
  return static_cast<Enumeration>(0);
}

unsigned int number(const json_t *row, const char *name)
{
  return static_cast<unsigned int>(ZelRspUtil_getIntegerParam(row, name));
}

} // namespace

unsigned int ZelRsp_connectionGetIndex(const json_t *row)
{
  return number(row, "index");
}

Info_ConnectionMode ZelRsp_connectionGetMode(const json_t *row)
{
  return wordOf<Info_ConnectionMode>(row, "mode", kConnectionModes);
}

unsigned int ZelRsp_connectionGetRxIndex(const json_t *row)
{
  return number(row, "rxIndex");
}

unsigned int ZelRsp_connectionGetTxIndex(const json_t *row)
{
  return number(row, "txIndex");
}

unsigned int ZelRsp_connectionGetSessionStartTime(const json_t *row)
{
  return number(row, "sessionStartTime");
}

unsigned int ZelRsp_edidGetIndex(const json_t *row)
{
  return number(row, "index");
}

const char *ZelRsp_edidGetName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "name");
}

const char *ZelRsp_edidGetDescription(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "description");
}

unsigned int ZelRsp_rxGetIndex(const json_t *row)
{
  return number(row, "index");
}

const char *ZelRsp_rxGetEid(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "eid");
}

const char *ZelRsp_rxGetName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "name");
}

unsigned int ZelRsp_txGetIndex(const json_t *row)
{
  return number(row, "index");
}

const char *ZelRsp_txGetEid(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "eid");
}

const char *ZelRsp_txGetName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "name");
}

unsigned int ZelRsp_swxGetIndex(const json_t *row)
{
  return number(row, "index");
}

const char *ZelRsp_swxGetEid(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "eid");
}

const char *ZelRsp_swxGetName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "name");
}

Info_SwxMode ZelRsp_swxGetMode(const json_t *row)
{
  return wordOf<Info_SwxMode>(row, "mode", kSwxModes);
}

Info_SwxStatus ZelRsp_swxGetStatus(const json_t *row)
{
  return wordOf<Info_SwxStatus>(row, "status", kSwxStates);
}

Info_SwxUsage ZelRsp_swxGetUsage(const json_t *row)
{
  return wordOf<Info_SwxUsage>(row, "usage", kSwxUsages);
}

unsigned int ZelRsp_userGetIndex(const json_t *row)
{
  return number(row, "index");
}

const char *ZelRsp_userGetName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "name");
}

const char *ZelRsp_userGetFullName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "fullName");
}

const char *ZelRsp_userGetMgrName(const json_t *row)
{
  return ZelRspUtil_getStringParam(row, "mgrName");
}

Info_UserRole ZelRsp_userGetRole(const json_t *row)
{
  return wordOf<Info_UserRole>(row, "role", kUserRoles);
}

Info_AccessMode ZelRsp_userGetModeAllowed(const json_t *row)
{
  return wordOf<Info_AccessMode>(row, "modeAllowed", kAccessModes);
}

int ZelRsp_userGetAllTargetAccess(const json_t *row)
{
  return ZelRspUtil_getBooleanParam(row, "allTargetAccess");
}

unsigned int ZelRsp_userSessionGetRxIndex(const json_t *row)
{
  return number(row, "rxIndex");
}

unsigned int ZelRsp_userSessionGetSessionStartTime(const json_t *row)
{
  return number(row, "sessionStartTime");
}
