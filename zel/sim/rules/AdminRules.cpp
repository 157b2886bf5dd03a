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

// What the password of a login is compared with. An account that isn't there takes the time of one that is,
// so that nobody learns from it which names there are.
std::string keptFor(const World &world, std::string_view username)
{
  const unsigned user = world.store.findText("user", "name", username);
  const std::string kept = user ? world.store.text("user", user, "password") : std::string();
  return kept.empty() ? nobodysPassword() : kept;
}

Problem authenticate(const World &world, const Call &call)
{
  const std::string name = call.text("username");
  if (name.empty() || !call.has("password"))
    return kCredentialsMissing;
  const std::string password = call.text("password");
  const bool matches = verifyPassword(password, keptFor(world, name));
  const unsigned user = world.store.findText("user", "name", name);
  if (!user)
    return kNotAuthenticated;
  const bool nothingKept = world.store.text("user", user, "password").empty();
  const bool mayBeBlank = world.store.flag("user", user, "allowBlankPassword");
  if (password.empty() ? !mayBeBlank || !(nothingKept || matches) : nothingKept || !matches)
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
  if (!problem) {
    // Whoever has the right password must not be told otherwise, which is how a refusal would show.
    makeRoomForAdminSession(world);
    return kOk;
  }
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
  if (const auto client = world.clients.find(call.client); client != world.clients.end())
    store.setNumber("adminSession", call.index, "process", client->second.process);
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

} // namespace

bool passwordWorkOfLogin(const World &world, const json_t *params, PasswordWork &work)
{
  const char *name = json_string_value(json_object_get(params, "username"));
  const json_t *password = json_object_get(params, "password");
  if (!name || !*name || !json_is_string(password))
    return false;
  work.password.assign(json_string_value(password), json_string_length(password));
  work.kept = keptFor(world, name);
  return true;
}

void registerAdminRules(Rules &rules)
{
  rules.check("adminSession", Method::Create, checkLogin);
  rules.act("adminSession", Method::Create, beginSession);
  rules.act("adminSession", Method::Delete, endSession);
}

} // namespace zelsim
