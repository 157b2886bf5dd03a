// SPDX-License-Identifier: MIT
#include "Db.h"
#include "DbExchange.h"

namespace
{

constexpr char kCannotWriteInteger[] = "Cannot write integer value to database.";
constexpr char kCannotWriteString[] = "Cannot write string value to database.";

} // namespace

unsigned int Db::writeUInt32(const char *resource, unsigned int index, const char *parameter,
                             unsigned int value, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newSetResource(resource));
  if (!request)
    return DbExchange_noRequest("writeUInt32");
  if (index != 0)
    ZelReqUtil_setIntegerParam(request.get(), "index", index);
  ZelReqUtil_setIntegerParam(request.get(), parameter, value);
  ZelResponse response;
  return DbExchange_send("writeUInt32", client, request, kCannotWriteInteger, response, errors);
}

unsigned int Db::writeString(const char *resource, unsigned int index, const char *parameter,
                             const char *value, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newSetResource(resource));
  if (!request)
    return DbExchange_noRequest("writeString");
  if (index != 0)
    ZelReqUtil_setIntegerParam(request.get(), "index", index);
  // A text that is not UTF-8 can't be carried; without it the request would succeed and change nothing.
  if (ZelReqUtil_setStringParam(request.get(), parameter, value))
    return DbExchange_noRequest("writeString", kCannotWriteString);
  ZelResponse response;
  return DbExchange_send("writeString", client, request, kCannotWriteString, response, errors);
}

unsigned int Db::writeString(const char *resource, unsigned int index, const char *parameter,
                             const std::string &value, Errors &errors)
{
  return writeString(resource, index, parameter, value.c_str(), errors);
}

unsigned int Db::writeEnableDisable(const char *resource, unsigned int index, const char *parameter,
                                    bool value, Errors &errors)
{
  return writeString(resource, index, parameter, value ? "enabled" : "disabled", errors);
}

unsigned int Db::deleteRecordByIndex(const char *resource, unsigned int index, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newDeleteResource(resource));
  if (!request)
    return DbExchange_noRequest("deleteRecordByIndex");
  ZelObj_setUInt32Object(request.get(), "params", "index", index);
  ZelResponse response;
  return DbExchange_send("deleteRecordByIndex", client, request, nullptr, response, errors);
}
