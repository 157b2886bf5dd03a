// SPDX-License-Identifier: MIT
#include "rules/RuleBook.h"
#include "rules/ShortCuts.h"

namespace zelsim
{

namespace
{

bool mayAdminister(const World &world, unsigned user)
{
  return world.store.text("user", user, "role") == "admin" && world.store.flag("user", user, "accountEnable");
}

// The switch is never left without an administrator who can log in.
bool isLastAdministrator(const World &world, unsigned user)
{
  if (!mayAdminister(world, user))
    return false;
  for (const unsigned other : world.store.indexes("user"))
    if (other != user && mayAdminister(world, other))
      return false;
  return true;
}

bool takesAdministration(const Call &call)
{
  return (call.has("role") && call.text("role") != "admin") ||
         (call.has("accountEnable") && !call.flag("accountEnable"));
}

Problem checkTargets(const World &world, const json_t *list, const char *parameter)
{
  std::size_t i = 0;
  json_t *entry = nullptr;
  json_array_foreach(list, i, entry)
  {
    const json_int_t tx = json_integer_value(json_object_get(entry, "txIndex"));
    if (!world.store.exists("tx", static_cast<unsigned>(tx)))
      return {kNotFound, parameter};
  }
  return kOk;
}

// Whether the account may have a blank password once the request is done.
bool blankAllowed(const World &world, const Call &call)
{
  if (call.has("allowBlankPassword"))
    return call.flag("allowBlankPassword");
  return call.method == Method::Set && world.store.flag("user", call.index, "allowBlankPassword");
}

Problem checkUser(World &world, const Call &call)
{
  if (call.has("name") && call.text("name").empty())
    return {kTooShort, "name"};
  if (call.has("password") && call.text("password").empty() && !blankAllowed(world, call))
    return {kTooShort, "password"};
  return checkTargets(world, json_object_get(call.params, "favorite"), "favorite");
}

Problem checkChange(World &world, const Call &call)
{
  return takesAdministration(call) && isLastAdministrator(world, call.index) ? kNotAllowed : kOk;
}

Problem checkRemoval(World &world, const Call &call)
{
  if (isLastAdministrator(world, call.index))
    return kNotAllowed;
  return world.store.findNumber("userSession", "userIndex", call.index) ? kInUse : kOk;
}

Problem addCompanionsOf(World &world, Call &call)
{
  world.store.create("userTargetList", call.index);
  if (!call.has("osdInactivityTimeout"))
    world.store.setNumber("user", call.index, "osdInactivityTimeout",
                          world.store.number("cfgDefaults", 0, "rxDefaultOsdInactivityTimeout"));
  return kOk;
}

Problem removeCompanionsOf(World &world, Call &call)
{
  world.store.remove("userTargetList", call.index);
  while (const unsigned session = world.store.findNumber("adminSession", "userIndex", call.index))
    world.store.remove("adminSession", session);
  while (const unsigned rx = world.store.findNumber("rx", "autoLoginUserIndex", call.index))
    world.store.setNumber("rx", rx, "autoLoginUserIndex", 0);
  return kOk;
}

} // namespace

void registerUserRules(Rules &rules)
{
  rules.check("user", Method::Create, checkUser);
  rules.check("user", Method::Set, checkUser);
  rules.check("user", Method::Set, checkChange);
  rules.check("user", Method::Delete, checkRemoval);
  rules.act("user", Method::Create, addCompanionsOf);
  rules.act("user", Method::Delete, removeCompanionsOf);
  // Whoever sets a password knows it; only a new account's first one is a stand-in.
  rules.onParameter("user", "password", [](World &world, Call &call) -> Problem {
    if (call.method == Method::Set)
      world.store.setText("user", call.index, "passwordIsInitialized", "is_true");
    return kOk;
  });
  registerShortCutRules(rules);
  rules.check("userTargetList", Method::Set, [](World &world, const Call &call) -> Problem {
    return checkTargets(world, json_object_get(call.params, "target"), "target");
  });
  rules.check("rx", Method::Set, [](World &world, const Call &call) -> Problem {
    const auto user = static_cast<unsigned>(call.number("autoLoginUserIndex"));
    return user && !world.store.exists("user", user) ? Problem(kNotFound, "autoLoginUserIndex") : Problem();
  });
}

} // namespace zelsim
