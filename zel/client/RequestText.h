// SPDX-License-Identifier: MIT
#ifndef ZEL_CLIENT_REQUEST_TEXT_H_
#define ZEL_CLIENT_REQUEST_TEXT_H_

#include <jansson.h>
#include <string>

namespace zelclient
{

/// Puts a request's compact JSON in the place of what `text` held, with its members in the order in which
/// they were set. False for a request that no JSON text stands for.
bool writeRequest(const json_t *request, std::string &text);

/// Appends any JSON value.
bool appendJson(const json_t *value, std::string &text);

} // namespace zelclient

#endif // ZEL_CLIENT_REQUEST_TEXT_H_
