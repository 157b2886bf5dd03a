// SPDX-License-Identifier: MIT
#include "AlertRows.h"

#include "Db.h"
#include "Text.h"
#include "ZelValue.h"

#include <Wt/WStandardItemModel>
#include <algorithm>
#include <boost/any.hpp>

using AlertRows::Column;

namespace
{

/// What the cells of an alert's row hold, the hidden one left out.
struct Cells {
  std::string texts[AlertRows::ColumnCount];
  std::string typeClass; ///< the style class that puts the severity's sign before its word

  explicit Cells(const AlertRecord &alert)
  {
    texts[AlertRows::DateColumn] = alert.dateText();
    texts[AlertRows::TypeColumn] = alert.severityText();
    texts[AlertRows::OriginatorColumn] = alert.originatorEid.value_or(std::string());
    texts[AlertRows::MessageColumn] = alert.message;
    if (alert.severity == "error" || alert.severity == "warning" || alert.severity == "info")
      typeClass = "nevo-severity-" + alert.severity;
  }
};

template <class Value>
bool holds(const Wt::WStandardItemModel &model, int row, int column, int role, const Value &value)
{
  const boost::any data = model.data(row, column, role);
  const Value *held = boost::any_cast<Value>(&data);
  return held && *held == value;
}

bool rowShows(const Wt::WStandardItemModel &model, int row, const AlertRecord &alert)
{
  if (!holds(model, row, AlertRows::InstanceColumn, Wt::EditRole, alert.instanceId))
    return false;
  const Cells cells(alert);
  for (int column = AlertRows::DateColumn; column < AlertRows::ColumnCount; ++column)
    if (!holds(model, row, column, Wt::EditRole, cells.texts[column]))
      return false;
  return holds(model, row, AlertRows::TypeColumn, Wt::StyleClassRole, cells.typeClass);
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
  const Cells cells(alert);
  model.setData(row, AlertRows::InstanceColumn, boost::any(alert.instanceId), Wt::EditRole);
  for (int column = AlertRows::DateColumn; column < AlertRows::ColumnCount; ++column)
    model.setData(row, column, boost::any(cells.texts[column]), Wt::EditRole);
  model.setData(row, AlertRows::TypeColumn, boost::any(cells.typeClass), Wt::StyleClassRole);
}

void clear(Wt::WStandardItemModel &model)
{
  if (model.rowCount() > 0)
    model.removeRows(0, model.rowCount());
}

/// The alerts of the store, the newest first; none if they cannot be read.
std::vector<AlertRecord> newestFirst(AlertRows::Retrieve retrieve)
{
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return std::vector<AlertRecord>();
  const ZelResponse response(retrieve(client, AlertRecord::kSelect));
  std::vector<AlertRecord> alerts = AlertRecord::readAll(response.get());
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
