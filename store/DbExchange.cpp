// SPDX-License-Identifier: MIT
#include "DbExchange.h"

#include "Db.h"
#include "EventLog.h"

unsigned int DbExchange_noRequest(const char *function, const char *message)
{
  EventLog_write(1, 7, function, message);
  return 1;
}

bool DbExchange_failed(const json_t *response, std::vector<std::string> &errors,
                       DbExchange_NoEntries noEntries)
{
  json_t *errorsObject = ZelRspUtil_getObjectParam(response, "errors");
  if (!errorsObject)
    return false;
  Db_db.interpZelErrors(errorsObject, errors, noEntries == DbExchange_NoEntries::AreNone);
  Db_db.logZelErrors(errors);
  return true;
}

unsigned int DbExchange_read(const char *function, const char *resource, std::optional<unsigned int> index,
                             const char *parameter, ZelResponse &response, std::vector<std::string> &errors)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newGetResource(resource));
  if (!request)
    return DbExchange_noRequest(function);
  if (index)
    ZelObj_setUInt32Object(request.get(), "query", "index", *index);
  ZelObj_setSelect(request.get(), parameter);
  return DbExchange_send(function, client, request, nullptr, response, errors);
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
  return DbExchange_failed(response.get(), errors) ? 1 : 0;
}
