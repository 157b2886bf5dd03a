// SPDX-License-Identifier: MIT
#include "ZelReq.h"

#include "Frame.h"
#include "ZelObj.h"
#include "ZelReqUtil.h"

#include <new>
#include <string>

namespace
{

// Sends `request` and frees it.
json_t *sendAndFree(ZelClient_s *client, json_t *request)
{
  json_t *response = request ? ZelClient_getResponse(client, request) : nullptr;
  ZelReqUtil_free(request);
  return response;
}

// The list that a select text stands for, or null.
json_t *parseSelect(const char *select)
{
  try {
    std::string text = select;
    std::size_t first = text.find_first_not_of(" \t\r\n");
    if (first == std::string::npos || text[first] != '[')
      text = '[' + text + ']';
    return zelwire::parseJson(text);
  } catch (const std::bad_alloc &) {
    return nullptr;
  }
}

json_t *retrieve(ZelClient_s *client, const char *resource, const char *select)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  if (request && select && *select && ZelObj_setObject(request, "select", parseSelect(select)) != 0) {
    ZelReqUtil_free(request);
    return nullptr;
  }
  return sendAndFree(client, request);
}

json_t *retrieveBy(ZelClient_s *client, const char *resource, const char *key, unsigned int value)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  if (request && ZelReqUtil_setIntegerQuery(request, key, value) != 0) {
    ZelReqUtil_free(request);
    return nullptr;
  }
  return sendAndFree(client, request);
}

// Adds "index" to the params of `request`; frees it if that fails.
json_t *withIndex(json_t *request, unsigned int index)
{
  if (request && ZelReqUtil_setIntegerParam(request, "index", index) != 0) {
    ZelReqUtil_free(request);
    return nullptr;
  }
  return request;
}

json_t *newUpdate(const char *resource, unsigned int index)
{
  return withIndex(ZelReqUtil_newSetResource(resource), index);
}

json_t *newDelete(const char *resource, unsigned int index)
{
  return withIndex(ZelReqUtil_newDeleteResource(resource), index);
}

} // namespace

json_t *ZelReq_adminSessionNewCreateReq(void)
{
  return ZelReqUtil_newCreateResource("adminSession");
}

json_t *ZelReq_adminSessionNewDeleteReq(unsigned int index)
{
  return newDelete("adminSession", index);
}

int ZelReq_adminSessionSetIpAddress(json_t *request, const char *address)
{
  return ZelReqUtil_setStringParam(request, "ipAddress", address);
}

json_t *ZelReq_cfgDefaultsRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "cfgDefaults", select);
}

json_t *ZelReq_connectionRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "connection", select);
}

json_t *ZelReq_connectionRetrieveByIndex(ZelClient_s *client, unsigned int index)
{
  return retrieveBy(client, "connection", "index", index);
}

json_t *ZelReq_connectionNewCreateReq(void)
{
  return ZelReqUtil_newCreateResource("connection");
}

json_t *ZelReq_connectionNewDeleteReq(unsigned int index)
{
  return newDelete("connection", index);
}

int ZelReq_connectionSetRxIndex(json_t *request, unsigned int rxIndex)
{
  return ZelReqUtil_setIntegerParam(request, "rxIndex", rxIndex);
}

int ZelReq_connectionSetTxIndex(json_t *request, unsigned int txIndex)
{
  return ZelReqUtil_setIntegerParam(request, "txIndex", txIndex);
}

int ZelReq_connectionSetMode(json_t *request, Info_ConnectionMode mode)
{
  return ZelReqUtil_setStringParam(request, "mode",
                                   mode == Info_ConnectionMode_Private ? "private_mode" : "share_mode");
}

json_t *ZelReq_edidRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "edid", select);
}

json_t *ZelReq_edidRetrieveByIndex(ZelClient_s *client, unsigned int index)
{
  return retrieveBy(client, "edid", "index", index);
}

json_t *ZelReq_edidRetrieveByName(ZelClient_s *client, const char *name)
{
  json_t *request = ZelReqUtil_newGetResource("edid");
  json_t *query = ZelObj_new();
  if (ZelObj_setString(query, "name", name) != 0) {
    ZelObj_free(query);
    query = nullptr;
  }
  if (ZelObj_setObject(request, "query", query) != 0) {
    ZelReqUtil_free(request);
    return nullptr;
  }
  return sendAndFree(client, request);
}

json_t *ZelReq_edidNewDeleteReq(unsigned int index)
{
  return newDelete("edid", index);
}

json_t *ZelReq_historicalAlertsRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "historicalAlerts", select);
}

json_t *ZelReq_unacknowledgedAlertsRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "unacknowledgedAlerts", select);
}

json_t *ZelReq_portStatusRetrieveByIndex(ZelClient_s *client, unsigned int index)
{
  return retrieveBy(client, "portStatus", "index", index);
}

json_t *ZelReq_portStatusRetrieveBySwxIndex(ZelClient_s *client, unsigned int swxIndex)
{
  return retrieveBy(client, "portStatus", "swxIndex", swxIndex);
}

json_t *ZelReq_rxRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "rx", select);
}

json_t *ZelReq_txRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "tx", select);
}

json_t *ZelReq_swxRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "swx", select);
}

json_t *ZelReq_swxNewUpdateReq(unsigned int index)
{
  return newUpdate("swx", index);
}

json_t *ZelReq_systemGlobalsRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "systemGlobals", select);
}

json_t *ZelReq_systemGlobalsNewUpdateReq(void)
{
  return ZelReqUtil_newSetResource("systemGlobals");
}

json_t *ZelReq_upgradeRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "upgrade", select);
}

json_t *ZelReq_userRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "user", select);
}

json_t *ZelReq_userNewCreateReq(void)
{
  return ZelReqUtil_newCreateResource("user");
}

json_t *ZelReq_userNewUpdateReq(unsigned int index)
{
  return newUpdate("user", index);
}

json_t *ZelReq_userNewDeleteReq(unsigned int index)
{
  return newDelete("user", index);
}

int ZelReq_userSetName(json_t *request, const char *name)
{
  return ZelReqUtil_setStringParam(request, "name", name);
}

int ZelReq_userSetFullName(json_t *request, const char *fullName)
{
  return ZelReqUtil_setStringParam(request, "fullName", fullName);
}

int ZelReq_userSetPassword(json_t *request, const char *password)
{
  return ZelReqUtil_setStringParam(request, "password", password);
}

int ZelReq_userSetRole(json_t *request, Info_UserRole role)
{
  return ZelReqUtil_setStringParam(request, "role", role == Info_UserRole_Admin ? "admin" : "user");
}

json_t *ZelReq_userSessionRetrieve(ZelClient_s *client, const char *select)
{
  return retrieve(client, "userSession", select);
}

json_t *ZelReq_userSessionNewCreateReq(void)
{
  return ZelReqUtil_newCreateResource("userSession");
}

int ZelReq_userSessionSetRxIndex(json_t *request, unsigned int rxIndex)
{
  return ZelReqUtil_setIntegerParam(request, "rxIndex", rxIndex);
}

int ZelReq_userSessionSetUserIndex(json_t *request, unsigned int userIndex)
{
  return ZelReqUtil_setIntegerParam(request, "userIndex", userIndex);
}

json_t *ZelReq_userTargetListRetrieveByIndex(ZelClient_s *client, unsigned int userIndex)
{
  return retrieveBy(client, "userTargetList", "index", userIndex);
}

json_t *ZelReq_userTargetListNewUpdateReq(unsigned int userIndex)
{
  return newUpdate("userTargetList", userIndex);
}
