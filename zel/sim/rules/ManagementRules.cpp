// SPDX-License-Identifier: MIT
#include "rules/Management.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

struct Passage {
  const char *from;
  const char *to;
};

// What a request may make of "managedSetting". The way in begins at the manager, which is simulated by
// control commands; the interface knows the way out.
constexpr Passage kPassages[] = {
    {"enrolling", "unenrolling"},   {"managed", "unenrolling"}, {"verified", "unenrolling"},
    {"enrolling", "non_managed"},   {"managed", "non_managed"}, {"verified", "non_managed"},
    {"unenrolling", "non_managed"},
};

Problem checkChange(World &world, const Call &call)
{
  const std::string from = world.store.text("systemGlobals", 0, "managedSetting");
  const std::string to = call.has("managedSetting") ? call.text("managedSetting") : from;
  if (to == from)
    return kOk;
  for (const Passage &passage : kPassages)
    if (from == passage.from && to == passage.to)
      return kOk;
  return {kNotAllowed, "managedSetting"};
}

} // namespace

void registerManagementRules(Rules &rules)
{
  rules.check("systemGlobals", Method::Set, checkChange);
  rules.onParameter("systemGlobals", "managedSetting", [](World &world, Call &) -> Problem {
    followManagedSetting(world);
    return kOk;
  });
}

} // namespace zelsim
