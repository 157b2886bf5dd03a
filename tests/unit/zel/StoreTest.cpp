// SPDX-License-Identifier: MIT
#include "StoreTest.h"

#include "ZelObj.h"
#include "ZelReqUtil.h"
#include "ZelRspUtil.h"

StoreTest::StoreTest(TestStore::Options options) : store(std::move(options)), client(ZelClient_new()) {}

StoreTest::~StoreTest()
{
  ZelClient_close(client);
}

json_t *StoreTest::send(json_t *request)
{
  json_t *response = ZelReqUtil_submit(request, client);
  ZelReqUtil_free(request);
  return response;
}

int StoreTest::errorOf(json_t *response)
{
  if (!response)
    return -1;
  json_t *errors = ZelRspUtil_getObjectParam(response, "errors");
  const int result = errors ? ZelRspUtil_getIndexedIntegerParam(errors, 0, "errno") : 0;
  ZelRspUtil_free(response);
  return result;
}

void StoreTest::reconnect()
{
  ZelClient_close(client);
  client = ZelClient_new();
}

namespace
{

json_t *getRequest(const char *resource, unsigned index, const char *parameter)
{
  json_t *request = ZelReqUtil_newGetResource(resource);
  if (index)
    ZelObj_setUInt32Object(request, "query", "index", index);
  if (parameter)
    ZelObj_setSelect(request, parameter);
  return request;
}

} // namespace

std::string StoreTest::text(const char *resource, unsigned index, const char *parameter)
{
  json_t *response = send(getRequest(resource, index, parameter));
  const char *value = response ? ZelRspUtil_getStringParam(response, parameter) : nullptr;
  std::string result = value ? value : "(none)";
  if (response)
    ZelRspUtil_free(response);
  return result;
}

unsigned StoreTest::number(const char *resource, unsigned index, const char *parameter)
{
  json_t *response = send(getRequest(resource, index, parameter));
  const unsigned result =
      response ? static_cast<unsigned>(ZelRspUtil_getIntegerParam(response, parameter)) : 0;
  if (response)
    ZelRspUtil_free(response);
  return result;
}

bool StoreTest::exists(const char *resource, unsigned index)
{
  return errorOf(send(getRequest(resource, index, "index"))) == 0;
}

unsigned StoreTest::rows(const char *resource)
{
  json_t *response = send(getRequest(resource, 0, nullptr));
  const bool failed = !response || ZelRspUtil_getObjectParam(response, "errors");
  const unsigned result = failed ? 0 : static_cast<unsigned>(ZelRspUtil_numEntries(response));
  if (response)
    ZelRspUtil_free(response);
  return result;
}

int StoreTest::set(const char *resource, unsigned index, const Params &params)
{
  json_t *request = ZelReqUtil_newSetResource(resource);
  if (index)
    ZelReqUtil_setIntegerParam(request, "index", index);
  for (const Param &param : params)
    param.isText ? ZelReqUtil_setStringParam(request, param.name, param.text.c_str())
                 : ZelReqUtil_setIntegerParam(request, param.name, param.number);
  return errorOf(send(request));
}

int StoreTest::setJson(const char *resource, unsigned index, const char *parameter, const std::string &json)
{
  json_t *request = ZelReqUtil_newSetResource(resource);
  if (index)
    ZelReqUtil_setIntegerParam(request, "index", index);
  ZelReqUtil_setObjectParam(request, parameter, json_loads(json.c_str(), 0, nullptr));
  return errorOf(send(request));
}

int StoreTest::create(const char *resource, const Params &params, unsigned *index)
{
  json_t *request = ZelReqUtil_newCreateResource(resource);
  for (const Param &param : params)
    param.isText ? ZelReqUtil_setStringParam(request, param.name, param.text.c_str())
                 : ZelReqUtil_setIntegerParam(request, param.name, param.number);
  json_t *response = send(request);
  if (response && index)
    *index = static_cast<unsigned>(ZelRspUtil_getIntegerParam(response, "index"));
  return errorOf(response);
}

int StoreTest::remove(const char *resource, unsigned index)
{
  json_t *request = ZelReqUtil_newDeleteResource(resource);
  ZelObj_setUInt32Object(request, "params", "index", index);
  return errorOf(send(request));
}

int StoreTest::logInAdministrator(const char *name, const char *password, unsigned *session)
{
  return create(
      "adminSession",
      {{"username", name}, {"password", password}, {"sessionType", "nevo"}, {"ipAddress", "192.0.2.7"}},
      session);
}

int StoreTest::logIn(unsigned user, unsigned rx, unsigned *session)
{
  return create("userSession", {{"userIndex", user}, {"rxIndex", rx}}, session);
}

int StoreTest::connect(unsigned rx, unsigned tx, const char *mode, unsigned *connection)
{
  return create("connection", {{"rxIndex", rx}, {"txIndex", tx}, {"mode", mode}}, connection);
}

void StoreTest::pass(unsigned seconds)
{
  const TestStore::Outcome outcome = store.control({"jump", std::to_string(seconds)});
  EXPECT_FALSE(outcome.failed) << outcome.text;
}

unsigned StoreTest::counter(unsigned changeId)
{
  return number("changeStatus", changeId, "lastChange");
}

bool StoreTest::hasAlert(const char *list, const std::string &part)
{
  json_t *response = send(getRequest(list, 0, "alertMsg"));
  if (!response)
    return false;
  bool found = false;
  for (unsigned i = 0; i < static_cast<unsigned>(ZelRspUtil_numEntries(response)); ++i) {
    const char *message = ZelRspUtil_getIndexedStringParam(response, i, "alertMsg");
    found = found || (message && std::string(message).find(part) != std::string::npos);
  }
  ZelRspUtil_free(response);
  return found;
}
