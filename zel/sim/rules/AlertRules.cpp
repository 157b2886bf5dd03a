// SPDX-License-Identifier: MIT
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

void clear(World &world, const char *list)
{
  for (const unsigned instance : world.store.indexes(list))
    world.store.remove(list, instance);
}

Problem checkAction(World &world, const Call &call)
{
  if (call.text("alertsAction") != "ack_specific")
    return kOk;
  if (!call.has("alertInstanceId"))
    return {kMissingParameter, "alertInstanceId"};
  const auto instance = static_cast<unsigned>(call.number("alertInstanceId"));
  return world.store.exists("unacknowledgedAlerts", instance) ? Problem()
                                                              : Problem(kNotFound, "alertInstanceId");
}

Problem runAction(World &world, Call &call)
{
  const std::string action = call.text("alertsAction");
  if (action == "clear_history")
    clear(world, "historicalAlerts");
  else if (action == "ack_all")
    clear(world, "unacknowledgedAlerts");
  else
    world.store.remove("unacknowledgedAlerts", static_cast<unsigned>(call.number("alertInstanceId")));
  return kOk;
}

} // namespace

void registerAlertRules(Rules &rules)
{
  rules.check("alertsControl", Method::Set, checkAction);
  rules.onParameter("alertsControl", "alertsAction", runAction);
  rules.onParameter("systemGlobals", "eventLogControl", [](World &world, Call &call) -> Problem {
    const json_t *levels = json_object_get(call.params, "eventLogControl");
    for (const char *level : {"error", "warning", "info"})
      if (const char *word = json_string_value(json_object_get(levels, level)))
        world.store.setText("eventLogControl", 0, level, word);
    return kOk;
  });
}

} // namespace zelsim
