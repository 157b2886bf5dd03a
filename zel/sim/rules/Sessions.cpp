// SPDX-License-Identifier: MIT
#include "rules/Sessions.h"

#include "rules/Alerts.h"
#include "rules/Connections.h"
#include "rules/Ports.h"
#include "rules/Topology.h"

namespace zelsim
{

namespace
{

constexpr char kSharedMode[] = "share_mode";
constexpr char kPrivateMode[] = "private_mode";

bool allows(const std::string &allowed, const std::string &mode)
{
  return allowed == mode || allowed == "share_or_private_mode";
}

bool hasRight(const World &world, unsigned userIndex, unsigned txIndex)
{
  if (world.store.flag("user", userIndex, "allTargetAccess"))
    return true;
  const Json targets = world.store.nested("userTargetList", userIndex, "target");
  std::size_t i = 0;
  json_t *entry = nullptr;
  json_array_foreach(targets.get(), i, entry)
  {
    if (json_integer_value(json_object_get(entry, "txIndex")) == txIndex)
      return true;
  }
  return false;
}

// What the sessions that the transmitter is in already say to one more of `mode`.
Problem mayJoin(const World &world, unsigned txIndex, const std::string &mode)
{
  unsigned sharers = 0;
  for (const Connection &connection : connectionsOf(world)) {
    if (connection.tx != txIndex)
      continue;
    if (mode == kPrivateMode)
      return kPrivateToConnectedTx;
    if (connection.isPrivate)
      return kShareToPrivateTx;
    ++sharers;
  }
  return sharers >= kMostSharers ? kShareLimit : kOk;
}

Problem readiness(const World &world, const Device &device)
{
  const std::string status = deviceStatus(world, device);
  if (status == "offline")
    return device.kind->notOnline;
  if (status == "reset_pending")
    return device.kind->alreadyResetting;
  if (status != "ready")
    return kDeviceNotOnline;
  return deviceText(world, device, "upgradeStatus") == "upgrading" ? kInUse : kOk;
}

std::string originator(const World &world, unsigned rxIndex)
{
  return deviceEid(world, {&kReceivers, rxIndex});
}

} // namespace

std::string userLabel(const World &world, unsigned userIndex)
{
  const std::string name = world.store.text("user", userIndex, "name");
  return name.empty() ? world.store.text("user", userIndex, "mgrName") : name;
}

Problem mayLogIn(const World &world, unsigned userIndex, unsigned rxIndex)
{
  if (!world.store.exists("user", userIndex))
    return {kNotFound, "userIndex"};
  if (!world.store.exists("rx", rxIndex))
    return {kNotFound, "rxIndex"};
  if (!world.store.flag("user", userIndex, "accountEnable"))
    return kAccountNotEnabled;
  if (world.store.findNumber("userSession", "rxIndex", rxIndex))
    return kRxSessionActive;
  return readiness(world, {&kReceivers, rxIndex});
}

Problem mayConnect(const World &world, unsigned rxIndex, unsigned txIndex, const std::string &mode)
{
  if (!world.store.exists("rx", rxIndex))
    return {kNotFound, "rxIndex"};
  if (!world.store.exists("tx", txIndex))
    return {kNotFound, "txIndex"};
  const Device rx = {&kReceivers, rxIndex}, tx = {&kTransmitters, txIndex};
  for (const Device &device : {rx, tx})
    if (const Problem problem = readiness(world, device))
      return problem;
  if (world.store.findNumber("connection", "rxIndex", rxIndex))
    return kRxAlreadyConnected;
  const unsigned session = world.store.findNumber("userSession", "rxIndex", rxIndex);
  if (!session)
    return kNotAllowed;
  const auto user = static_cast<unsigned>(world.store.number("userSession", session, "userIndex"));
  if (!hasRight(world, user, txIndex))
    return kNotAuthorized;
  if (!allows(world.store.text("user", user, "modeAllowed"), mode) ||
      !allows(deviceText(world, rx, "modeAllowed"), mode) ||
      !allows(deviceText(world, tx, "modeAllowed"), mode))
    return kNotAllowed;
  if (const Problem problem = mayJoin(world, txIndex, mode))
    return problem;
  return pathBetween(world, rxIndex, txIndex);
}

void beginUserSession(World &world, unsigned sessionIndex, bool automatic)
{
  const auto rx = static_cast<unsigned>(world.store.number("userSession", sessionIndex, "rxIndex"));
  const auto user = static_cast<unsigned>(world.store.number("userSession", sessionIndex, "userIndex"));
  world.store.setNumber("userSession", sessionIndex, "sessionStartTime", world.clock.now());
  raiseAlert(world, automatic ? AlertKind::UserAutoLogin : AlertKind::UserLogin, originator(world, rx),
             userLabel(world, user), deviceLabel(world, {&kReceivers, rx}));
}

void beginConnection(World &world, unsigned connectionIndex)
{
  const auto number = [&](const char *key) {
    return static_cast<unsigned>(world.store.number("connection", connectionIndex, key));
  };
  const Device rx = {&kReceivers, number("rxIndex")}, tx = {&kTransmitters, number("txIndex")};
  world.store.setText("connection", connectionIndex, "rxEid", deviceEid(world, rx));
  world.store.setText("connection", connectionIndex, "txEid", deviceEid(world, tx));
  world.store.setNumber("connection", connectionIndex, "sessionStartTime", world.clock.now());
  const bool shared = world.store.text("connection", connectionIndex, "mode") == kSharedMode;
  raiseAlert(world, shared ? AlertKind::SharedKvmSessionEstablished : AlertKind::PrivateKvmSessionEstablished,
             deviceEid(world, rx), deviceLabel(world, rx), deviceLabel(world, tx));
  refreshPortsOf(world, rx);
  refreshPortsOf(world, tx);
}

unsigned logIn(World &world, unsigned userIndex, unsigned rxIndex, bool automatic)
{
  const unsigned session = mayLogIn(world, userIndex, rxIndex) ? 0 : world.store.create("userSession");
  if (session) {
    world.store.setNumber("userSession", session, "userIndex", userIndex);
    world.store.setNumber("userSession", session, "rxIndex", rxIndex);
    beginUserSession(world, session, automatic);
  }
  return session;
}

unsigned connect(World &world, unsigned rxIndex, unsigned txIndex, const std::string &mode)
{
  const unsigned connection =
      mayConnect(world, rxIndex, txIndex, mode) ? 0 : world.store.create("connection");
  if (connection) {
    world.store.setNumber("connection", connection, "rxIndex", rxIndex);
    world.store.setNumber("connection", connection, "txIndex", txIndex);
    world.store.setText("connection", connection, "mode", mode);
    beginConnection(world, connection);
  }
  return connection;
}

void endConnection(World &world, unsigned connectionIndex, Ending ending)
{
  const auto number = [&](const char *key) {
    return static_cast<unsigned>(world.store.number("connection", connectionIndex, key));
  };
  const Device rx = {&kReceivers, number("rxIndex")}, tx = {&kTransmitters, number("txIndex")};
  raiseAlert(world,
             ending == Ending::LinkDown ? AlertKind::KvmSessionDisconnectedLinkDown
                                        : AlertKind::KvmSessionDisconnected,
             deviceEid(world, rx), deviceLabel(world, rx), deviceLabel(world, tx));
}

void disconnect(World &world, unsigned connectionIndex, Ending ending)
{
  const auto rx = static_cast<unsigned>(world.store.number("connection", connectionIndex, "rxIndex"));
  const auto tx = static_cast<unsigned>(world.store.number("connection", connectionIndex, "txIndex"));
  endConnection(world, connectionIndex, ending);
  world.store.remove("connection", connectionIndex);
  refreshPortsOf(world, {&kReceivers, rx});
  refreshPortsOf(world, {&kTransmitters, tx});
}

void endUserSession(World &world, unsigned sessionIndex, Ending ending)
{
  const auto rx = static_cast<unsigned>(world.store.number("userSession", sessionIndex, "rxIndex"));
  const auto user = static_cast<unsigned>(world.store.number("userSession", sessionIndex, "userIndex"));
  if (const unsigned connection = world.store.findNumber("connection", "rxIndex", rx))
    disconnect(world, connection, ending);
  raiseAlert(world, AlertKind::UserLogout, originator(world, rx), userLabel(world, user),
             deviceLabel(world, {&kReceivers, rx}));
}

void endSessionsOf(World &world, const Device &device, Ending ending)
{
  if (device.isTransmitter()) {
    while (const unsigned connection = world.store.findNumber("connection", "txIndex", device.index))
      disconnect(world, connection, ending);
  } else if (device.isReceiver()) {
    if (const unsigned session = world.store.findNumber("userSession", "rxIndex", device.index)) {
      endUserSession(world, session, ending);
      world.store.remove("userSession", session);
    }
  }
}

} // namespace zelsim
