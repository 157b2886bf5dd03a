// SPDX-License-Identifier: MIT
#include "AlertRows.h"

#include "Text.h"

#include <algorithm>

namespace
{

/// The style class that puts the severity's sign before its word; empty for one that nobody knows.
std::string severityClass(const AlertRecord &alert)
{
  const bool known = alert.severity == "error" || alert.severity == "warning" || alert.severity == "info";
  return known ? "nevo-severity-" + alert.severity : std::string();
}

} // namespace

ListColumns AlertRows::columns()
{
  return {{text("Date/Time")}, {text("Type")}, {text("Originator EID")}, {text("Message")}};
}

std::optional<ListRows> AlertRows::read(Retrieve retrieve)
{
  std::optional<std::vector<AlertRecord>> alerts = retrieve();
  if (!alerts)
    return std::nullopt;
  std::stable_sort(alerts->begin(), alerts->end(), [](const AlertRecord &left, const AlertRecord &right) {
    return left.instanceId > right.instanceId;
  });
  ListRows rows;
  for (const AlertRecord &alert : *alerts)
    rows.push_back({alert.instanceId,
                    {alert.dateText(),
                     {alert.severityText(), severityClass(alert)},
                     alert.originatorEid.value_or(""),
                     alert.message}});
  return rows;
}
