// SPDX-License-Identifier: MIT
#include "data/Password.h"
#include "rules/AdminSessions.h"
#include "rules/Alerts.h"
#include "rules/Device.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

Problem authenticate(const World &world, const Call &call)
{
  const std::string name = call.text("username");
  if (name.empty() || !call.has("password"))
    return kCredentialsMissing;
  const unsigned user = world.store.findText("user", "name", name);
  if (!user)
    return kNotAuthenticated;
  const std::string kept = world.store.text("user", user, "password");
  const std::string password = call.text("password");
  if (password.empty() && !world.store.flag("user", user, "allowBlankPassword"))
    return kNotAuthenticated;
  const bool nothingKept = password.empty() && kept.empty();
  if (!nothingKept && !verifyPassword(password, kept))
    return kNotAuthenticated;
  if (!world.store.flag("user", user, "accountEnable"))
    return kAccountNotEnabled;
  return world.store.text("user", user, "role") == "admin" ? kOk : kNotAuthorized;
}

// The alerts of a login depend on the door that it came through.
AlertKind alertOf(const std::string &sessionType, AlertKind nevo, AlertKind rap, AlertKind setupPort)
{
  if (sessionType == "rap")
    return rap;
  return sessionType == "setup_port" ? setupPort : nevo;
}

Problem checkLogin(World &world, const Call &call)
{
  const Problem problem = authenticate(world, call);
  if (problem)
    raiseAlertLater(world,
                    alertOf(call.text("sessionType"), AlertKind::NevoFailedAdminLogin,
                            AlertKind::RapFailedAdminLogin, AlertKind::SetupPortFailedAdminLogin),
                    ownEid(world), call.text("username"), call.text("ipAddress"));
  return problem;
}

Problem beginSession(World &world, Call &call)
{
  Store &store = world.store;
  const unsigned user = store.findText("user", "name", call.text("username"));
  store.setNumber("adminSession", call.index, "userIndex", user);
  store.setNumber("adminSession", call.index, "sessionStartTime", world.clock.now());
  store.setNumber("adminSession", call.index, "client", static_cast<std::int64_t>(call.client));
  json_object_set_new(call.answer, "userIndex", json_integer(user));
  raiseAlert(world,
             alertOf(store.text("adminSession", call.index, "sessionType"), AlertKind::NevoAdminLogin,
                     AlertKind::RapAdminLogin, AlertKind::SetupPortAdminLogin),
             ownEid(world), call.text("username"), call.text("ipAddress"));
  return kOk;
}

Problem endSession(World &world, Call &call)
{
  raiseAlert(world,
             alertOf(world.store.text("adminSession", call.index, "sessionType"), AlertKind::NevoAdminLogout,
                     AlertKind::RapAdminLogout, AlertKind::SetupPortAdminLogout),
             ownEid(world), world.store.text("adminSession", call.index, "username"));
  return kOk;
}

// A page that was closed, or an interface that ended, logs nobody out. Its sessions go a while after its
// connection: a connection that only broke down is made anew, and its person is still there.
constexpr Clock::Milliseconds kLingerTime = 10 * 60 * 1000;

} // namespace

void endSessionsOfClient(World &world, std::uint64_t client)
{
  const auto number = static_cast<std::int64_t>(client);
  for (const unsigned session : world.store.indexes("adminSession"))
    if (world.store.number("adminSession", session, "client") == number)
      world.clock.after(kLingerTime, [&world, session, number] {
        if (world.store.exists("adminSession", session) &&
            world.store.number("adminSession", session, "client") == number)
          world.store.remove("adminSession", session);
      });
}

void registerAdminRules(Rules &rules)
{
  rules.check("adminSession", Method::Create, checkLogin);
  rules.act("adminSession", Method::Create, beginSession);
  rules.act("adminSession", Method::Delete, endSession);
}

} // namespace zelsim
