// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_RSP_UTIL_H_
#define ZEL_API_ZEL_RSP_UTIL_H_

#include <jansson.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Reading of responses.
///
/// A response is one record, a list of rows, or a failure that holds "errors". One record can be read as
/// a list of one row, and the getters without a row read a list's first row. Nothing here fails loudly: a
/// parameter that is missing or of another type gives null, 0 or no bytes. What a getter returns by
/// pointer belongs to the response and lives until ZelRspUtil_free().

/// Number of rows, or of entries of an "errors" list; 0 for a failure and for null.
int ZelRspUtil_numEntries(const json_t *response);

const char *ZelRspUtil_getStringParam(const json_t *response, const char *name);
int ZelRspUtil_getIntegerParam(const json_t *response, const char *name);
/// 1 or 0. The word "enabled" counts as a set flag, too.
int ZelRspUtil_getBooleanParam(const json_t *response, const char *name);
/// Copies at most `size` bytes and zeroes what is left of the buffer. Returns the number of bytes copied.
int ZelRspUtil_getBinaryParam(const json_t *response, const char *name, void *buffer, size_t size);
/// The member as it is, of any type; "errors" is there exactly when the store reports a failure.
json_t *ZelRspUtil_getObjectParam(const json_t *response, const char *name);

/// The same for row `row`, from 0.
const char *ZelRspUtil_getIndexedStringParam(const json_t *response, unsigned int row, const char *name);
int ZelRspUtil_getIndexedIntegerParam(const json_t *response, unsigned int row, const char *name);
int ZelRspUtil_getIndexedBinaryParam(const json_t *response, unsigned int row, const char *name, void *buffer,
                                     size_t size);
json_t *ZelRspUtil_getIndexedObjectParam(const json_t *response, unsigned int row, const char *name);

/// Null is allowed.
void ZelRspUtil_free(json_t *response);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_RSP_UTIL_H_
