// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_CLIENT_H_
#define ZEL_API_ZEL_CLIENT_H_

#include <jansson.h>

#ifdef __cplusplus
extern "C" {
#endif

/// The connection to the store server.
///
/// A client is used by one thread at a time; different clients may be used by different threads at once.
/// A request takes a bounded time: a server that is absent, silent, slow or that sends nonsense costs the
/// caller a null response and makes the client invalid, never more.
typedef struct ZelClient_s ZelClient_s;

/// Opens a connection. Null when the store server can't be reached, which ZelClient_isValid() takes as
/// "not valid". The result is freed by ZelClient_close().
ZelClient_s *ZelClient_new(void);

/// Non-zero if the next request has a chance. Null is not valid. A connection that has failed stays
/// invalid for good: close it and open another.
int ZelClient_isValid(const ZelClient_s *client);

/// Closes and frees a connection, valid or not. Null is allowed.
void ZelClient_close(ZelClient_s *client);

/// Sends `request` and returns the response, or null if it could not be sent or answered; the client is
/// invalid then. The request stays the caller's; the response is freed with ZelRspUtil_free(). Responses
/// are read only: the library may hand out the same value again while nothing has changed in the store.
json_t *ZelClient_getResponse(ZelClient_s *client, json_t *request);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_CLIENT_H_
