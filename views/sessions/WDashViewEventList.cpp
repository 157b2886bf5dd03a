// SPDX-License-Identifier: MIT
#include "WDashViewEventList.h"

#include "Convert.h"
#include "Db.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "ZelReq.h"
#include "ZelValue.h"

#include <Wt/WStandardItemModel>
#include <boost/any.hpp>

namespace
{

enum Column { InstanceColumn, DateColumn, TypeColumn, OriginatorColumn, MessageColumn, ColumnCount };

const int panelHeight = 260; ///< pixels

/// A text of a row, empty where the store gives none.
std::string rowText(json_t *response, int row, const char *parameter)
{
  const char *value = ZelRspUtil_getIndexedStringParam(response, row, parameter);
  return value ? value : "";
}

/// The style class that puts the severity's sign before its word.
std::string severityClass(const std::string &severity)
{
  return severity == "error" || severity == "warning" || severity == "info" ? "nevo-severity-" + severity
                                                                            : std::string();
}

std::string dateText(json_t *response, int row)
{
  char buffer[64];
  Convert_dateTimeStampToString(ZelRspUtil_getIndexedIntegerParam(response, row, "date"), buffer,
                                sizeof buffer);
  return buffer;
}

} // namespace

WDashViewEventList::WDashViewEventList(Wt::WContainerWidget *parent)
    : WCollapsingObjListContextPanel(text("Events"), HeightAdaptive, panelHeight, ColumnCount, parent)
{
  setColumns({"InstanceID", text("Date/Time").toUTF8(), text("Type").toUTF8(),
              text("Originator EID").toUTF8(), text("Message").toUTF8()});
  tableView->setAttributeValue("data-empty", text("There are no unacknowledged events."));
}

void WDashViewEventList::eventLogClear()
{
  if (model->rowCount() > 0)
    model->removeRows(0, model->rowCount());
}

void WDashViewEventList::readFromDatabase()
{
  eventLogClear();
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  const ZelResponse alerts(
      ZelReq_unacknowledgedAlertsRetrieve(client, "\"date\",\"originatorEid\",\"severity\",\"alertMsg\""));
  if (!alerts)
    return;
  const int count = ZelRspUtil_numEntries(alerts.get());
  if (count > 0)
    model->insertRows(0, count);
  for (int row = 0; row < count; ++row) {
    const unsigned int instance =
        static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(alerts.get(), row, "instanceId"));
    std::string severity = rowText(alerts.get(), row, "severity");
    model->setData(row, InstanceColumn, boost::any(instance), Wt::EditRole);
    model->setData(row, DateColumn, boost::any(dateText(alerts.get(), row)), Wt::EditRole);
    model->setData(row, TypeColumn, boost::any(Convert_alertSeverityDbStringToUiString(severity)),
                   Wt::EditRole);
    model->setData(row, TypeColumn, boost::any(severityClass(severity)), Wt::StyleClassRole);
    model->setData(row, OriginatorColumn, boost::any(rowText(alerts.get(), row, "originatorEid")),
                   Wt::EditRole);
    model->setData(row, MessageColumn, boost::any(rowText(alerts.get(), row, "alertMsg")), Wt::EditRole);
  }
  model->sort(InstanceColumn, Wt::DescendingOrder);
}
