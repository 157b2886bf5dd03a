// SPDX-License-Identifier: MIT
#include "Db.h"
#include "DbExchange.h"

namespace
{

constexpr char kCannotWriteInteger[] = "Cannot write integer value to database.";
constexpr char kCannotWriteString[] = "Cannot write string value to database.";

// Writes one record; `setValue` adds the value to the request and returns 0, or else nothing is sent.
template <class SetValue>
unsigned int write(const char *function, const char *message, const char *resource, unsigned int index,
                   SetValue setValue, Db::Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newSetResource(resource));
  if (!request)
    return DbExchange_noRequest(function);
  if (index != 0)
    ZelReqUtil_setIntegerParam(request.get(), "index", index);
  if (setValue(request.get()) != 0)
    return DbExchange_noRequest(function, message);
  ZelResponse response;
  return DbExchange_send(function, client, request, message, response, errors);
}

} // namespace

unsigned int Db::writeUInt32(const char *resource, unsigned int index, const char *parameter,
                             unsigned int value, Errors &errors)
{
  const auto setValue = [&](json_t *request) {
    return ZelReqUtil_setIntegerParam(request, parameter, value);
  };
  return write("writeUInt32", kCannotWriteInteger, resource, index, setValue, errors);
}

unsigned int Db::writeString(const char *resource, unsigned int index, const char *parameter,
                             const char *value, Errors &errors)
{
  // A text that is not UTF-8 can't be carried; without it the request would succeed and change nothing.
  const auto setValue = [&](json_t *request) { return ZelReqUtil_setStringParam(request, parameter, value); };
  return write("writeString", kCannotWriteString, resource, index, setValue, errors);
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
