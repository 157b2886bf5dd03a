// SPDX-License-Identifier: MIT
#ifndef STORE_ZEL_VALUE_H_
#define STORE_ZEL_VALUE_H_

#include "ZelObj.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

#include <memory>

/// Owners of the store client library's values: whoever made a request frees it, whoever got a response
/// frees it.
struct ZelRequestDeleter {
  void operator()(json_t *request) const { ZelReqUtil_free(request); }
};
struct ZelResponseDeleter {
  void operator()(json_t *response) const { ZelRspUtil_free(response); }
};
struct ZelObjectDeleter {
  void operator()(json_t *object) const { ZelObj_free(object); }
};

using ZelRequest = std::unique_ptr<json_t, ZelRequestDeleter>;
using ZelResponse = std::unique_ptr<json_t, ZelResponseDeleter>;
using ZelObject = std::unique_ptr<json_t, ZelObjectDeleter>;

#endif // STORE_ZEL_VALUE_H_
