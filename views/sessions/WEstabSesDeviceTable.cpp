// SPDX-License-Identifier: MIT
#include "WEstabSesDeviceTable.h"

#include "Db.h"
#include "EventLog.h"
#include "ZelObj.h"
#include "ZelValue.h"

namespace
{

/// All devices of a resource; null, and logged if there is a word to log, if they cannot be read.
ZelResponse readDevices(const char *resource)
{
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return ZelResponse();
  const ZelRequest request(ZelReqUtil_newGetResource(resource));
  if (!request) {
    EventLog_write(1, 7, "readFromDatabase", "Cannot create ZEL request object.");
    return ZelResponse();
  }
  for (const char *parameter : {"index", "modeAllowed", "eid", "name"})
    ZelObj_setSelect(request.get(), parameter);
  ZelResponse response(ZelClient_getResponse(client, request.get()));
  json_t *errorList = ZelRspUtil_getObjectParam(response.get(), "errors");
  if (errorList) {
    Db::Errors errors;
    Db_db.interpZelErrors(errorList, errors, false);
    Db_db.logZelErrors(errors);
    response.reset();
  }
  return response;
}

std::string textOf(const ZelResponse &devices, int row, const char *parameter)
{
  const char *value = ZelRspUtil_getIndexedStringParam(devices.get(), row, parameter);
  return value ? value : "";
}

} // namespace

WEstabSesDeviceTable::WEstabSesDeviceTable(const Wt::WString &eidHeading, const Wt::WString &nameHeading,
                                           Wt::WContainerWidget *parent)
    : WRecordTable(300, 200, {{eidHeading, 125}, {nameHeading, 150}}, parent)
{
}

bool WEstabSesDeviceTable::addDevices(const char *resource,
                                      const std::function<bool(const Device &)> &offered)
{
  const ZelResponse devices = readDevices(resource);
  if (!devices)
    return true;
  const int count = ZelRspUtil_numEntries(devices.get());
  for (int row = 0; row < count; ++row) {
    const Device device = {
        static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(devices.get(), row, "index")),
        textOf(devices, row, "modeAllowed")};
    if (offered(device))
      addRecord(device.index, {textOf(devices, row, "eid"), textOf(devices, row, "name")});
  }
  return false;
}
