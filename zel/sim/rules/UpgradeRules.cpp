// SPDX-License-Identifier: MIT
#include "life/UpgradeLife.h"
#include "rules/RuleBook.h"

namespace zelsim
{

namespace
{

void registerKind(Rules &rules, const DeviceKind *kind)
{
  rules.check(kind->resource, Method::Set, [kind](World &world, const Call &call) -> Problem {
    const auto record = static_cast<unsigned>(call.number("upgradeIndex"));
    return record ? mayUpdate(world, {kind, call.index}, record) : Problem();
  });
  rules.onParameter(kind->resource, "upgradeIndex", [kind](World &world, Call &call) -> Problem {
    if (const auto record = static_cast<unsigned>(call.number("upgradeIndex")))
      beginUpdate(world, {kind, call.index}, record);
    return kOk;
  });
}

// A source without a server makes sense for a file of the switch only.
Problem checkSource(World &, const Call &call)
{
  const bool isLocal = call.text("protocol") == "file";
  return !isLocal && call.text("location").empty() ? Problem(kMissingParameter, "location") : Problem();
}

Problem checkRemoval(World &world, const Call &call)
{
  for (const DeviceKind *kind : kDeviceKinds)
    for (const unsigned index : world.store.indexes(kind->resource))
      if (world.store.number(kind->resource, index, "upgradeIndex") == call.index &&
          world.store.text(kind->resource, index, "upgradeStatus") == "upgrading")
        return kInUse;
  return kOk;
}

} // namespace

void registerUpgradeRules(Rules &rules)
{
  for (const DeviceKind *kind : kDeviceKinds)
    registerKind(rules, kind);
  rules.check("upgrade", Method::Create, checkSource);
  rules.check("upgrade", Method::Delete, checkRemoval);
}

} // namespace zelsim
