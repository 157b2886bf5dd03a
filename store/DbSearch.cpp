// SPDX-License-Identifier: MIT
#include "Db.h"
#include "DbExchange.h"

#include <cstring>

namespace
{

unsigned int numberOfRows(const ZelResponse &response)
{
  const int rows = ZelRspUtil_numEntries(response.get());
  return rows > 0 ? static_cast<unsigned int>(rows) : 0;
}

unsigned int integerOf(const ZelResponse &response, unsigned int row, const char *parameter)
{
  return static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response.get(), row, parameter));
}

} // namespace

unsigned int Db::findIndexOfUInt32Key(const char *resource, const char *keyParameter, unsigned int keyValue,
                                      unsigned int &index, Errors &)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newGetResource(resource));
  if (!request)
    return DbExchange_noRequest("findIndexOfUInt32Key");
  // An empty resource answers with an error, too, and an absent key has no message: so no error has one.
  const ZelResponse response(ZelClient_getResponse(client, request.get()));
  if (!response || ZelRspUtil_getObjectParam(response.get(), "errors"))
    return 1;
  const unsigned int rows = numberOfRows(response);
  for (unsigned int row = 0; row < rows; ++row) {
    if (integerOf(response, row, keyParameter) == keyValue) {
      index = integerOf(response, row, "index");
      return 0;
    }
  }
  return 1;
}

unsigned int Db::findIndexOfStringKey(const char *resource, const char *indexParameter,
                                      const char *keyParameter, const char *keyValue, unsigned int &index,
                                      Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newGetResource(resource));
  if (!request)
    return DbExchange_noRequest("findIndexOfStringKey");
  ZelResponse response;
  if (DbExchange_send("findIndexOfStringKey", client, request, nullptr, response, errors))
    return 1;
  const unsigned int rows = numberOfRows(response);
  for (unsigned int row = 0; row < rows; ++row) {
    const char *found = ZelRspUtil_getIndexedStringParam(response.get(), row, keyParameter);
    if (found && keyValue && std::strcmp(found, keyValue) == 0) {
      index = integerOf(response, row, indexParameter);
      return 0;
    }
  }
  return 1;
}

unsigned int Db::findOffsetOfUInt32KeyInZelRsp(json_t *response, const char *keyParameter,
                                               unsigned int keyValue, unsigned int &offset, Errors &errors)
{
  if (!response)
    return 1;
  if (DbExchange_failed(response, errors))
    return 1;
  const int rows = ZelRspUtil_numEntries(response);
  for (int row = 0; row < rows; ++row) {
    const auto number = static_cast<unsigned int>(row);
    if (static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response, number, keyParameter)) ==
        keyValue) {
      offset = number;
      return 0;
    }
  }
  return 1;
}
