// SPDX-License-Identifier: MIT
#include "rules/ShortCuts.h"

#include <cstring>
#include <memory>

namespace zelsim
{

namespace
{

const json_t *listIn(const json_t *keySettings)
{
  return json_object_get(keySettings, "osdShortCuts");
}

json_t *entryOf(json_t *list, const char *functionKey)
{
  std::size_t i = 0;
  json_t *entry = nullptr;
  json_array_foreach(list, i, entry)
  {
    const char *key = json_string_value(json_object_get(entry, "functionKey"));
    if (key && functionKey && std::strcmp(key, functionKey) == 0)
      return entry;
  }
  return nullptr;
}

json_t *newEntry(const char *functionKey)
{
  return json_pack("{s:s,s:s,s:s}", "functionKey", functionKey ? functionKey : "none", "action", "none",
                   "txEID", "");
}

} // namespace

Json mergedShortCuts(const json_t *before, const json_t *changes)
{
  Json merged(before ? json_deep_copy(before) : json_array());
  std::size_t i = 0;
  json_t *change = nullptr;
  json_array_foreach(changes, i, change)
  {
    const char *functionKey = json_string_value(json_object_get(change, "functionKey"));
    json_t *entry = entryOf(merged.get(), functionKey);
    if (!entry) {
      entry = newEntry(functionKey);
      json_array_append_new(merged.get(), entry);
    }
    json_object_update(entry, change);
  }
  return merged;
}

void registerShortCutRules(Rules &rules)
{
  // What stood before is gone once the request's value is stored, so the check keeps the merged list for
  // the action of the same request.
  const auto merged = std::make_shared<Json>();
  rules.check("user", Method::Set, [merged](World &world, const Call &call) -> Problem {
    const json_t *changes = listIn(json_object_get(call.params, "keySettings"));
    const Json before = world.store.nested("user", call.index, "keySettings");
    *merged = changes ? mergedShortCuts(listIn(before.get()), changes) : Json();
    return kOk;
  });
  rules.onParameter("user", "keySettings", [merged](World &world, Call &call) -> Problem {
    if (call.method != Method::Set || !*merged)
      return kOk;
    const Json settings = world.store.nested("user", call.index, "keySettings");
    json_object_set(settings.get(), "osdShortCuts", merged->get());
    merged->reset();
    world.store.setNested("user", call.index, "keySettings", settings.get());
    return kOk;
  });
}

} // namespace zelsim
