// SPDX-License-Identifier: MIT
#include "data/Fleet.h"
#include "rules/Form.h"
#include "rules/RuleBook.h"
#include "rules/TimeService.h"

namespace zelsim
{

namespace
{

std::string textIn(const json_t *object, const char *name)
{
  const char *text = json_string_value(json_object_get(object, name));
  return text ? text : "";
}

// One family of addresses: the names of its members and the form of its addresses.
struct Family {
  const char *name;
  const char *method;
  Form form;
  const char *addresses[3];
};

constexpr Family kFamilies[] = {
    {"ipv4", "ipv4ConfMethod", Form::IpV4, {"ipAddress", "subnetMask", "gatewayAddress"}},
    {"ipv6", "ipv6ConfMethod", Form::IpV6, {"ipAddress", "gatewayAddress", nullptr}},
};

// With static addresses, those that are named must be addresses, and the switch must end up with one.
Problem checkFamily(const Family &family, const json_t *present, const json_t *given)
{
  const std::string method =
      json_object_get(given, family.method) ? textIn(given, family.method) : textIn(present, family.method);
  if (!given || method != "static")
    return kOk;
  for (const char *name : family.addresses)
    if (name && json_object_get(given, name) && !hasForm(textIn(given, name), family.form))
      return {kInvalidFormat, name};
  const json_t *source = json_object_get(given, "ipAddress") ? given : present;
  return hasForm(textIn(source, "ipAddress"), family.form) ? Problem() : Problem(kInvalidFormat, "ipAddress");
}

Problem checkNetwork(World &world, const Call &call)
{
  const json_t *given = json_object_get(call.params, "network");
  if (!given)
    return kOk;
  if (world.store.text("swx", call.index, "cascadeRole") == "backup")
    return kNetChangeOnBackup;
  const Json present = world.store.nested("swx", call.index, "network");
  for (const Family &family : kFamilies)
    if (const Problem problem = checkFamily(family, json_object_get(present.get(), family.name),
                                            json_object_get(given, family.name)))
      return problem;
  return kOk;
}

bool isAssigned(const json_t *network)
{
  return textIn(json_object_get(network, "ipv4"), "ipv4ConfMethod") != "static";
}

// Addresses that the network assigns come back when the switch leaves static ones.
Problem takeAddresses(World &world, Call &call)
{
  if (!json_object_get(json_object_get(json_object_get(call.params, "network"), "ipv4"), "ipv4ConfMethod"))
    return kOk;
  const Json network = world.store.nested("swx", call.index, "network");
  if (!isAssigned(network.get()))
    return kOk;
  const Json six(json_deep_copy(json_object_get(network.get(), "ipv6")));
  assignAddresses(world, call.index);
  const Json assigned = world.store.nested("swx", call.index, "network");
  json_object_set(assigned.get(), "ipv6", six.get());
  world.store.setNested("swx", call.index, "network", assigned.get());
  return kOk;
}

} // namespace

void registerNetworkRules(Rules &rules)
{
  rules.check("swx", Method::Set, checkNetwork);
  rules.onParameter("swx", "network", takeAddresses);
  for (const char *parameter : {"ntpEnable", "primaryNtpIpAddress", "secondaryNtpIpAddress"})
    rules.onParameter("swx", parameter, [](World &world, Call &call) -> Problem {
      synchronizeTime(world, call.index);
      return kOk;
    });
}

} // namespace zelsim
