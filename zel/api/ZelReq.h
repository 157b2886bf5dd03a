// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_REQ_H_
#define ZEL_API_ZEL_REQ_H_

#include "Info.h"
#include "ZelClient.h"

#include <jansson.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Ready-made requests of the common resources.
///
/// `...Retrieve` sends a GET at once and returns the response (freed with ZelRspUtil_free()) or null.
/// `select` names the wanted parameters as a JSON list of texts, with or without its brackets; null asks
/// for all. `...New...Req` makes a request (null without memory) to be sent with ZelReqUtil_submit() and
/// freed with ZelReqUtil_free(). `...Set...` adds one parameter and returns 0, or non-zero on failure.

/// adminSession: logins at this interface
json_t *ZelReq_adminSessionNewCreateReq(void);
json_t *ZelReq_adminSessionNewDeleteReq(unsigned int index);
int ZelReq_adminSessionSetIpAddress(json_t *request, const char *address);

/// cfgDefaults
json_t *ZelReq_cfgDefaultsRetrieve(ZelClient_s *client, const char *select);

/// connection: KVM sessions
json_t *ZelReq_connectionRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_connectionRetrieveByIndex(ZelClient_s *client, unsigned int index);
json_t *ZelReq_connectionNewCreateReq(void);
json_t *ZelReq_connectionNewDeleteReq(unsigned int index);
int ZelReq_connectionSetRxIndex(json_t *request, unsigned int rxIndex);
int ZelReq_connectionSetTxIndex(json_t *request, unsigned int txIndex);
int ZelReq_connectionSetMode(json_t *request, Info_ConnectionMode mode);

/// edid: the monitor library
json_t *ZelReq_edidRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_edidRetrieveByIndex(ZelClient_s *client, unsigned int index);
json_t *ZelReq_edidRetrieveByName(ZelClient_s *client, const char *name);
json_t *ZelReq_edidNewDeleteReq(unsigned int index);

/// historicalAlerts, unacknowledgedAlerts
json_t *ZelReq_historicalAlertsRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_unacknowledgedAlertsRetrieve(ZelClient_s *client, const char *select);

/// portStatus: the ports of one switch, in a nested list "ports"
json_t *ZelReq_portStatusRetrieveByIndex(ZelClient_s *client, unsigned int index);
json_t *ZelReq_portStatusRetrieveBySwxIndex(ZelClient_s *client, unsigned int swxIndex);

/// rx, tx, swx: the devices
json_t *ZelReq_rxRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_txRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_swxRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_swxNewUpdateReq(unsigned int index);

/// systemGlobals
json_t *ZelReq_systemGlobalsRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_systemGlobalsNewUpdateReq(void);

/// upgrade: sources of firmware
json_t *ZelReq_upgradeRetrieve(ZelClient_s *client, const char *select);

/// user
json_t *ZelReq_userRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_userNewCreateReq(void);
json_t *ZelReq_userNewUpdateReq(unsigned int index);
json_t *ZelReq_userNewDeleteReq(unsigned int index);
int ZelReq_userSetName(json_t *request, const char *name);
int ZelReq_userSetFullName(json_t *request, const char *fullName);
int ZelReq_userSetPassword(json_t *request, const char *password);
int ZelReq_userSetRole(json_t *request, Info_UserRole role);

/// userSession: logins at receivers
json_t *ZelReq_userSessionRetrieve(ZelClient_s *client, const char *select);
json_t *ZelReq_userSessionNewCreateReq(void);
int ZelReq_userSessionSetRxIndex(json_t *request, unsigned int rxIndex);
int ZelReq_userSessionSetUserIndex(json_t *request, unsigned int userIndex);

/// userTargetList: the targets that a user may reach, in a nested list "target"
json_t *ZelReq_userTargetListRetrieveByIndex(ZelClient_s *client, unsigned int userIndex);
json_t *ZelReq_userTargetListNewUpdateReq(unsigned int userIndex);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_REQ_H_
