// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_REQ_UTIL_H_
#define ZEL_API_ZEL_REQ_UTIL_H_

#include "ZelClient.h"

#include <jansson.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Building and sending of requests.
///
/// A request is an object with a method, a resource, and as needed "query" (the selecting keys), "select"
/// (the parameters that the response is to hold; without it, all) and "params" (the values of a set, a
/// create or a delete). Whoever makes a request frees it with ZelReqUtil_free(). The functions that add
/// something return 0, or non-zero if they could not; the request is unchanged then. Texts are UTF-8 and
/// are copied.

/// New requests; null without memory.
json_t *ZelReqUtil_newGetResource(const char *resource);
json_t *ZelReqUtil_newSetResource(const char *resource);
json_t *ZelReqUtil_newCreateResource(const char *resource);
json_t *ZelReqUtil_newDeleteResource(const char *resource);

/// Make a request of an empty object of ZelObj_new(). The method is "GET", "SET", "CREATE" or "DELETE".
int ZelReqUtil_setResource(json_t *request, const char *resource);
int ZelReqUtil_setMethod(json_t *request, const char *method);

/// Set a member of "params"; an earlier value of that name is replaced.
int ZelReqUtil_setStringParam(json_t *request, const char *name, const char *value);
int ZelReqUtil_setIntegerParam(json_t *request, const char *name, unsigned int value);
int ZelReqUtil_setBooleanParam(json_t *request, const char *name, int value);
/// Takes `object` over, also when it fails.
int ZelReqUtil_setObjectParam(json_t *request, const char *name, json_t *object);

/// Adds a selecting key. Called again with the same name, it asks for one more record: the response then
/// holds a row for each of the values.
int ZelReqUtil_setIntegerQuery(json_t *request, const char *name, unsigned int value);

/// Adds one parameter to "select".
int ZelReqUtil_setSelect(json_t *request, const char *parameter);

/// ZelClient_getResponse() with the arguments turned round.
json_t *ZelReqUtil_submit(json_t *request, ZelClient_s *client);

/// Null is allowed.
void ZelReqUtil_free(json_t *request);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_REQ_UTIL_H_
