// SPDX-License-Identifier: MIT
#include "AlertRows.h"

#include "Text.h"

#include <Wt/WStandardItemModel>
#include <algorithm>
#include <boost/any.hpp>

namespace
{

/// The style class that puts the severity's sign before its word; empty for one that nobody knows.
std::string severityClass(const AlertRecord &alert)
{
  const bool known = alert.severity == "error" || alert.severity == "warning" || alert.severity == "info";
  return known ? "nevo-severity-" + alert.severity : std::string();
}

template <class Value>
bool holds(const Wt::WStandardItemModel &model, int row, int column, int role, const Value &value)
{
  const boost::any data = model.data(row, column, role);
  const Value *held = boost::any_cast<Value>(&data);
  return held && *held == value;
}

bool rowShows(const Wt::WStandardItemModel &model, int row, const AlertRecord &alert)
{
  // The class tells the severity's word too.
  return holds(model, row, AlertRows::InstanceColumn, Wt::EditRole, alert.instanceId) &&
         holds(model, row, AlertRows::TypeColumn, Wt::StyleClassRole, severityClass(alert)) &&
         holds(model, row, AlertRows::OriginatorColumn, Wt::EditRole, alert.originatorEid.value_or("")) &&
         holds(model, row, AlertRows::MessageColumn, Wt::EditRole, alert.message) &&
         holds(model, row, AlertRows::DateColumn, Wt::EditRole, alert.dateText());
}

bool modelShows(const Wt::WStandardItemModel &model, const std::vector<AlertRecord> &alerts)
{
  if (model.rowCount() != static_cast<int>(alerts.size()))
    return false;
  int row = 0;
  for (const AlertRecord &alert : alerts)
    if (!rowShows(model, row++, alert))
      return false;
  return true;
}

void setRow(Wt::WStandardItemModel &model, int row, const AlertRecord &alert)
{
  const auto set = [&model, row](int column, int role, const boost::any &value) {
    model.setData(row, column, value, role);
  };
  set(AlertRows::InstanceColumn, Wt::EditRole, alert.instanceId);
  set(AlertRows::DateColumn, Wt::EditRole, alert.dateText());
  set(AlertRows::TypeColumn, Wt::EditRole, alert.severityText());
  set(AlertRows::TypeColumn, Wt::StyleClassRole, severityClass(alert));
  set(AlertRows::OriginatorColumn, Wt::EditRole, alert.originatorEid.value_or(""));
  set(AlertRows::MessageColumn, Wt::EditRole, alert.message);
}

void clear(Wt::WStandardItemModel &model)
{
  if (model.rowCount() > 0)
    model.removeRows(0, model.rowCount());
}

/// The alerts of the store, the newest first; none if they cannot be read.
std::vector<AlertRecord> newestFirst(AlertRows::Retrieve retrieve)
{
  std::vector<AlertRecord> alerts = retrieve().value_or(std::vector<AlertRecord>());
  std::stable_sort(alerts.begin(), alerts.end(), [](const AlertRecord &left, const AlertRecord &right) {
    return left.instanceId > right.instanceId;
  });
  return alerts;
}

} // namespace

std::vector<std::string> AlertRows::headings(const std::string &instance)
{
  return {instance, text("Date/Time").toUTF8(), text("Type").toUTF8(), text("Originator EID").toUTF8(),
          text("Message").toUTF8()};
}

void AlertRows::read(Retrieve retrieve, Wt::WStandardItemModel &model)
{
  const std::vector<AlertRecord> alerts = newestFirst(retrieve);
  if (modelShows(model, alerts))
    return;
  clear(model);
  if (alerts.empty())
    return;
  model.insertRows(0, static_cast<int>(alerts.size()));
  int row = 0;
  for (const AlertRecord &alert : alerts)
    setRow(model, row++, alert);
}
