// SPDX-License-Identifier: MIT
#include "Db.h"
#include "DbExchange.h"
#include "EdidFacts.h"
#include "Security.h"
#include "ZelReq.h"
#include "ZelRsp.h"

namespace
{

// A command that goes to a control resource by SET. `message` is logged if the request can't be made or
// gets no response.
class Command
{
public:
  Command(const char *function, const char *resource, const char *message)
      : function_(function), message_(message), request_(ZelReqUtil_newSetResource(resource))
  {
  }

  void set(const char *name, const std::string &value)
  {
    if (request_)
      ZelReqUtil_setStringParam(request_.get(), name, value.c_str());
  }

  void set(const char *name, unsigned int value)
  {
    if (request_)
      ZelReqUtil_setIntegerParam(request_.get(), name, value);
  }

  unsigned int send(Db::Errors &errors)
  {
    ZelClient_s *client = nullptr;
    if (Db_db.getZelClient(client))
      return 1;
    if (!request_)
      return DbExchange_noRequest(function_, message_);
    ZelResponse response;
    return DbExchange_send(function_, client, request_, message_, response, errors);
  }

private:
  const char *function_;
  const char *message_;
  ZelRequest request_;
};

unsigned int deleteConnection(ZelClient_s *client, unsigned int connectionIndex, Db::Errors &errors)
{
  const ZelRequest request(ZelReq_connectionNewDeleteReq(connectionIndex));
  if (!request)
    return 1;
  ZelResponse response;
  return DbExchange_send("destroyKvmSession", client, request, nullptr, response, errors);
}

// Copies a monitor's data out of a response.
unsigned int takeEdid(const ZelResponse &response, char *buffer, unsigned int size, Db::Errors &errors)
{
  if (!response)
    return 1;
  if (DbExchange_failed(response.get(), errors))
    return 1;
  ZelRspUtil_getBinaryParam(response.get(), "data", buffer, size);
  return 0;
}

} // namespace

unsigned int Db::createKvmSession(unsigned int userIndex, unsigned int rxIndex, unsigned int txIndex,
                                  Info_ConnectionMode mode, Errors &errors)
{
  if (Security_loginRxUser(userIndex, rxIndex, errors))
    return 1;
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReq_connectionNewCreateReq());
  if (!request)
    return DbExchange_noRequest("createKvmSession");
  ZelReq_connectionSetRxIndex(request.get(), rxIndex);
  ZelReq_connectionSetTxIndex(request.get(), txIndex);
  ZelReq_connectionSetMode(request.get(), mode);
  ZelResponse response;
  return DbExchange_send("createKvmSession", client, request, "Cannot create KVM session.", response, errors);
}

unsigned int Db::destroyKvmSession(unsigned int connectionIndex, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelResponse response(ZelReq_connectionRetrieveByIndex(client, connectionIndex));
  if (!response)
    return 1;
  const unsigned int rxIndex = ZelRsp_connectionGetRxIndex(response.get());
  deleteConnection(client, connectionIndex, errors);
  return Security_logoutUserByRxIndex(rxIndex, errors);
}

unsigned int Db::createUpgradeRecord(const std::string &protocol, const std::string &location,
                                     const std::string &filename, const std::string &username,
                                     const std::string &password, unsigned int &index, Errors &errors)
{
  static constexpr char kFunction[] = "createUpgradeRecord";
  static constexpr char kMessage[] = "Cannot create upgrade record.";
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  const ZelRequest request(ZelReqUtil_newCreateResource("upgrade"));
  if (!request)
    return DbExchange_noRequest(kFunction, kMessage);
  ZelReqUtil_setStringParam(request.get(), "protocol", protocol.c_str());
  ZelReqUtil_setStringParam(request.get(), "location", location.c_str());
  ZelReqUtil_setStringParam(request.get(), "filename", filename.c_str());
  ZelReqUtil_setStringParam(request.get(), "username", username.c_str());
  ZelReqUtil_setStringParam(request.get(), "password", password.c_str());
  ZelResponse response;
  if (DbExchange_send(kFunction, client, request, kMessage, response, errors))
    return 1;
  index = static_cast<unsigned int>(ZelRspUtil_getIntegerParam(response.get(), "index"));
  return 0;
}

unsigned int Db::clearAllHistoricalAlerts(Errors &errors)
{
  Command command("clearAllHistoricalAlerts", "alertsControl",
                  "Cannot create request to clear Historical Alerts.");
  command.set("alertsAction", "clear_history");
  return command.send(errors);
}

unsigned int Db::ackAllAlerts(Errors &errors)
{
  Command command("ackAllAlerts", "alertsControl", "Cannot create request to acknowledge Alerts.");
  command.set("alertsAction", "ack_all");
  return command.send(errors);
}

unsigned int Db::ackSpecificAlert(unsigned int instanceId, Errors &errors)
{
  Command command("ackSpecificAlert", "alertsControl", "Cannot create request to acknowledge Alert.");
  command.set("alertsAction", "ack_specific");
  command.set("alertInstanceId", instanceId);
  return command.send(errors);
}

unsigned int Db::getEdidInfo(unsigned int edidIndex, std::string &manufacturer, std::string &productCode,
                             std::string &type, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  char block[kEdidSize];
  if (takeEdid(ZelResponse(ZelReq_edidRetrieveByIndex(client, edidIndex)), block, sizeof block, errors))
    return 1;
  EdidFacts_read(block, manufacturer, productCode, type);
  return 0;
}

unsigned int Db::getEdidByName(const std::string &name, char *buffer, unsigned int size, Errors &errors)
{
  ZelClient_s *client = nullptr;
  if (getZelClient(client))
    return 1;
  return takeEdid(ZelResponse(ZelReq_edidRetrieveByName(client, name.c_str())), buffer, size, errors);
}

unsigned int Db::pushEdidToTx(unsigned int txIndex, unsigned int edidIndex, Errors &errors)
{
  Command command("pushEdidToTx", "edidControl",
                  "Cannot create request to push monitor properties to transmitter.");
  command.set("edidAction", "push");
  command.set("txIndex", txIndex);
  command.set("edidIndex", edidIndex);
  return command.send(errors);
}

unsigned int Db::pullEdidFromDevice(const std::string &deviceType, unsigned int deviceIndex,
                                    const std::string &name, const std::string &description, Errors &errors)
{
  Command command("pullEdidFromDevice", "edidControl",
                  "Cannot create request to retrieve monitor properties.");
  command.set("edidAction", "pull");
  command.set(deviceType == "rx" ? "rxIndex" : "txIndex", deviceIndex);
  command.set("edidName", name);
  command.set("edidDescription", description);
  return command.send(errors);
}

unsigned int Db::triggerLcdBacklightFlash(const char *resource, const std::string &eid, unsigned int duration,
                                          Errors &errors)
{
  Command command("triggerLcdBacklightFlash", resource, "Cannot write integer value to database.");
  command.set("eid", eid);
  command.set("lcdBacklightFlashDuration", duration <= 1 ? duration + 1 : duration);
  return command.send(errors);
}

unsigned int Db::requestDeviceReboot(const char *resource, unsigned int index, Errors &errors)
{
  return writeString(resource, index, "reset", "cold_reboot", errors);
}
