// SPDX-License-Identifier: MIT
#ifndef ZEL_API_ZEL_OBJ_H_
#define ZEL_API_ZEL_OBJ_H_

#include <jansson.h>
#include <stddef.h>

#ifdef __cplusplus
extern "C" {
#endif

/// Objects and arrays, as the values of nested parameters and as hand-made requests.
///
/// An object or array that is handed to a parent belongs to it from then on. The functions that set
/// something return 0, or non-zero if they could not. Text values are copied.

/// Empty values; null without memory. Freed with ZelObj_free() unless they were handed to a parent.
json_t *ZelObj_new(void);
json_t *ZelObj_newArray(void);

/// Takes `object` over when it succeeds (0); after a failure `object` is still the caller's.
int ZelObj_arrayAppendObject(json_t *array, json_t *object);

/// Takes `value` over, also when it fails.
int ZelObj_setObject(json_t *object, const char *name, json_t *value);

int ZelObj_setString(json_t *object, const char *name, const char *text);
int ZelObj_setInt32(json_t *object, const char *name, int number);
int ZelObj_setUInt32(json_t *object, const char *name, unsigned int number);
int ZelObj_setInteger(json_t *object, const char *name, unsigned int number);
int ZelObj_setBool32(json_t *object, const char *name, int flag);
int ZelObj_setBinary(json_t *object, const char *name, const void *bytes, size_t length);

/// Sets `outer` to a new object that holds one number, as in "query": {"index": 3}.
int ZelObj_setUInt32Object(json_t *object, const char *outer, const char *inner, unsigned int number);

/// Adds one parameter to the "select" of a request.
int ZelObj_setSelect(json_t *request, const char *parameter);

/// Row `row` (from 0) of a response, which owns it; null if there is no such row.
json_t *ZelObj_getRow(json_t *response, unsigned int row);

/// Flattens a nested member: the entries of the list `arrayName` (or the one object of that name) of each
/// record of `response` become the rows of the result, and each keeps the record's `keyName` beside it
/// unless it has one of its own. Can be called again on a result, for a deeper level. `response` is left
/// as it is. An "errors" response gives a result without rows; null without memory, or if no record has
/// such a member. The result is freed with ZelObj_free().
json_t *ZelObj_collapse(json_t *response, const char *keyName, const char *arrayName);

/// Null is allowed.
void ZelObj_free(json_t *value);

#ifdef __cplusplus
}
#endif

#endif // ZEL_API_ZEL_OBJ_H_
