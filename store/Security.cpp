// SPDX-License-Identifier: MIT
#include "Security.h"

#include "Db.h"
#include "DbExchange.h"
#include "EventLog.h"
#include "StoreSession.h"
#include "ZelReq.h"

namespace
{

// Asks the store for a login. Its reasons for a refusal stay in the store.
unsigned int createAdminSession(const char *username, const char *password, unsigned int &userIndex)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReq_adminSessionNewCreateReq());
  if (!request)
    return 1;
  ZelReq_adminSessionSetIpAddress(request.get(), StoreSession::currentClientAddress().c_str());
  ZelReqUtil_setStringParam(request.get(), "username", username ? username : "");
  ZelReqUtil_setStringParam(request.get(), "password", password ? password : "");
  ZelReqUtil_setStringParam(request.get(), "sessionType", "nevo");
  const ZelResponse response(ZelClient_getResponse(client, request.get()));
  if (!response || ZelRspUtil_getObjectParam(response.get(), "errors"))
    return 1;
  userIndex = static_cast<unsigned int>(ZelRspUtil_getIntegerParam(response.get(), "userIndex"));
  return 0;
}

} // namespace

unsigned int Security_loginNevoUser(const char *username, const char *password, unsigned int &userIndex,
                                    bool &passwordIsInitialized)
{
  if (createAdminSession(username, password, userIndex))
    return 1;
  std::string word;
  std::vector<std::string> errors;
  const unsigned int result = Db_db.readString("user", userIndex, "passwordIsInitialized", word, errors);
  if (result == 0)
    passwordIsInitialized = word == "is_true";
  return result;
}

unsigned int Security_logoutNevoUser(unsigned int userIndex, std::vector<std::string> &errors)
{
  static constexpr char kFunction[] = "Security_logoutNevoUser";
  std::string name;
  Db_db.readString("user", userIndex, "name", name, errors);
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  unsigned int sessionIndex = 0;
  if (Db_db.findIndexOfUInt32Key("adminSession", "userIndex", userIndex, sessionIndex, errors))
    return 0;
  const ZelRequest request(ZelReq_adminSessionNewDeleteReq(sessionIndex));
  if (!request)
    return 1;
  ZelResponse response;
  std::vector<std::string> localErrors;
  if (DbExchange_send(kFunction, client, request, nullptr, response, localErrors))
    return 1;
  EventLog_write(3, 7, kFunction, "%s logged out of NEVO.", name);
  return 0;
}

unsigned int Security_setPassword(const char *username, const char *password)
{
  static constexpr char kFunction[] = "Security_setPassword";
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newSetResource("user"));
  if (!request)
    return DbExchange_noRequest(kFunction);
  // Without an index the store finds the record by its name.
  ZelReqUtil_setStringParam(request.get(), "name", username ? username : "");
  ZelReqUtil_setStringParam(request.get(), "role", "admin");
  ZelReqUtil_setStringParam(request.get(), "password", password ? password : "");
  ZelReqUtil_setStringParam(request.get(), "passwordIsInitialized", "is_true");
  const ZelResponse response(ZelReqUtil_submit(request.get(), client));
  if (!response) {
    EventLog_write(1, 7, kFunction, "Cannot change password.");
    return 1;
  }
  return ZelRspUtil_getObjectParam(response.get(), "errors") ? 1 : 0;
}

unsigned int Security_loginRxUser(unsigned int userIndex, unsigned int rxIndex,
                                  std::vector<std::string> &errors)
{
  static constexpr char kFunction[] = "Security_loginRxUser";
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReq_userSessionNewCreateReq());
  if (!request)
    return DbExchange_noRequest(kFunction);
  ZelReq_userSessionSetUserIndex(request.get(), userIndex);
  ZelReq_userSessionSetRxIndex(request.get(), rxIndex);
  ZelResponse response;
  return DbExchange_send(kFunction, client, request, nullptr, response, errors);
}

unsigned int Security_logoutUserByRxIndex(unsigned int rxIndex, std::vector<std::string> &errors)
{
  unsigned int index = 0;
  if (Db_db.findIndexOfUInt32Key("userSession", "rxIndex", rxIndex, index, errors))
    return 1;
  return Db_db.deleteRecordByIndex("userSession", index, errors);
}

unsigned int Security_logoutUserByUserIndex(unsigned int userIndex, std::vector<std::string> &errors)
{
  static constexpr char kFunction[] = "Security_logoutUserByUserIndex";
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newGetResource("userSession"));
  if (!request)
    return DbExchange_noRequest(kFunction);
  ZelReqUtil_setSelect(request.get(), "index");
  ZelReqUtil_setSelect(request.get(), "userIndex");
  const ZelResponse response(ZelClient_getResponse(client, request.get()));
  if (!response)
    return 1;
  // The store calls it an error that nobody at all is logged in. Here it means that nothing is to do.
  std::vector<std::string> reasons;
  if (DbExchange_failed(response.get(), reasons, DbExchange_NoEntries::AreNone)) {
    errors.insert(errors.end(), reasons.begin(), reasons.end());
    return reasons.empty() ? 0 : 1;
  }
  const int rows = ZelRspUtil_numEntries(response.get());
  for (int i = 0; i < rows; ++i) {
    const auto row = static_cast<unsigned int>(i);
    if (static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response.get(), row, "userIndex")) !=
        userIndex)
      continue;
    const int index = ZelRspUtil_getIndexedIntegerParam(response.get(), row, "index");
    if (Db_db.deleteRecordByIndex("userSession", static_cast<unsigned int>(index), errors))
      return 1;
  }
  return 0;
}
