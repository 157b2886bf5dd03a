// SPDX-License-Identifier: MIT
#include "rules/Alerts.h"
#include "rules/Ports.h"
#include "rules/RuleBook.h"
#include "rules/Sessions.h"

namespace zelsim
{

namespace
{

unsigned indexIn(const Call &call, const char *parameter)
{
  return static_cast<unsigned>(call.number(parameter));
}

Problem checkLogin(World &world, const Call &call)
{
  const unsigned user = indexIn(call, "userIndex"), rx = indexIn(call, "rxIndex");
  const Problem problem = mayLogIn(world, user, rx);
  if (problem && world.store.exists("rx", rx))
    raiseAlertLater(world, AlertKind::FailedUserLogin, deviceEid(world, {&kReceivers, rx}),
                    userLabel(world, user), deviceLabel(world, {&kReceivers, rx}));
  return problem;
}

Problem checkConnection(World &world, const Call &call)
{
  const unsigned rx = indexIn(call, "rxIndex"), tx = indexIn(call, "txIndex");
  const std::string mode = call.has("mode") ? call.text("mode") : "share_mode";
  const Problem problem = mayConnect(world, rx, tx, mode);
  if (problem && world.store.exists("rx", rx) && world.store.exists("tx", tx))
    raiseAlertLater(world, AlertKind::KvmSessionConnectionFailure, deviceEid(world, {&kReceivers, rx}),
                    deviceLabel(world, {&kReceivers, rx}), deviceLabel(world, {&kTransmitters, tx}));
  return problem;
}

Problem tellEndOfConnection(World &world, Call &call)
{
  const auto rx = static_cast<unsigned>(world.store.number("connection", call.index, "rxIndex"));
  const auto tx = static_cast<unsigned>(world.store.number("connection", call.index, "txIndex"));
  endConnection(world, call.index, Ending::Disconnected);
  // The record goes behind this action; the ports are looked at when it is gone.
  world.clock.after(0, [&world, rx, tx] {
    refreshPortsOf(world, {&kReceivers, rx});
    refreshPortsOf(world, {&kTransmitters, tx});
  });
  return kOk;
}

} // namespace

void registerSessionRules(Rules &rules)
{
  rules.check("userSession", Method::Create, checkLogin);
  rules.act("userSession", Method::Create, [](World &world, Call &call) -> Problem {
    beginUserSession(world, call.index, false);
    return kOk;
  });
  rules.act("userSession", Method::Delete, [](World &world, Call &call) -> Problem {
    endUserSession(world, call.index, Ending::Disconnected);
    return kOk;
  });
  rules.check("connection", Method::Create, checkConnection);
  rules.act("connection", Method::Create, [](World &world, Call &call) -> Problem {
    beginConnection(world, call.index);
    return kOk;
  });
  rules.act("connection", Method::Delete, tellEndOfConnection);
}

} // namespace zelsim
