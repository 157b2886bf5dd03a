// SPDX-License-Identifier: MIT
#include "DbExchange.h"

#include "Db.h"
#include "EventLog.h"

unsigned int DbExchange_noRequest(const char *function, const char *message)
{
  EventLog_write(1, 7, function, message);
  return 1;
}

unsigned int DbExchange_send(const char *function, ZelClient_s *client, const ZelRequest &request,
                             const char *noResponseMessage, ZelResponse &response,
                             std::vector<std::string> &errors)
{
  response.reset(ZelClient_getResponse(client, request.get()));
  if (!response) {
    if (noResponseMessage)
      EventLog_write(1, 7, function, noResponseMessage);
    return 1;
  }
  if (json_t *errorsObject = ZelRspUtil_getObjectParam(response.get(), "errors")) {
    Db_db.interpZelErrors(errorsObject, errors, false);
    Db_db.logZelErrors(errors);
    return 1;
  }
  return 0;
}
