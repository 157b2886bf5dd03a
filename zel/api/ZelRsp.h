// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_RSP_H_
#define ZEL_API_ZEL_RSP_H_

#include "Info.h"

#include <jansson.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Typed getters on one row (ZelObj_getRow()) or on a response that holds one record. Texts belong to the
/// response and are null where the row has none; numbers are 0 then. Enumerations come from the store's
/// word; a word that is not known gives 0.

unsigned int ZelRsp_connectionGetIndex(const json_t *row);
Info_ConnectionMode ZelRsp_connectionGetMode(const json_t *row);
unsigned int ZelRsp_connectionGetRxIndex(const json_t *row);
unsigned int ZelRsp_connectionGetTxIndex(const json_t *row);
/// Seconds since 1970.
unsigned int ZelRsp_connectionGetSessionStartTime(const json_t *row);

unsigned int ZelRsp_edidGetIndex(const json_t *row);
const char *ZelRsp_edidGetName(const json_t *row);
const char *ZelRsp_edidGetDescription(const json_t *row);

unsigned int ZelRsp_rxGetIndex(const json_t *row);
const char *ZelRsp_rxGetEid(const json_t *row);
const char *ZelRsp_rxGetName(const json_t *row);

unsigned int ZelRsp_txGetIndex(const json_t *row);
const char *ZelRsp_txGetEid(const json_t *row);
const char *ZelRsp_txGetName(const json_t *row);

unsigned int ZelRsp_swxGetIndex(const json_t *row);
const char *ZelRsp_swxGetEid(const json_t *row);
const char *ZelRsp_swxGetName(const json_t *row);
Info_SwxMode ZelRsp_swxGetMode(const json_t *row);
Info_SwxStatus ZelRsp_swxGetStatus(const json_t *row);
Info_SwxUsage ZelRsp_swxGetUsage(const json_t *row);

unsigned int ZelRsp_userGetIndex(const json_t *row);
const char *ZelRsp_userGetName(const json_t *row);
const char *ZelRsp_userGetFullName(const json_t *row);
const char *ZelRsp_userGetMgrName(const json_t *row);
Info_UserRole ZelRsp_userGetRole(const json_t *row);
Info_AccessMode ZelRsp_userGetModeAllowed(const json_t *row);
/// 1 or 0.
int ZelRsp_userGetAllTargetAccess(const json_t *row);

unsigned int ZelRsp_userSessionGetRxIndex(const json_t *row);
/// Seconds since 1970.
unsigned int ZelRsp_userSessionGetSessionStartTime(const json_t *row);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_RSP_H_
