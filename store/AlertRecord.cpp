// SPDX-License-Identifier: MIT
#include "AlertRecord.h"

#include "Convert.h"
#include "ZelRspUtil.h"

const char *const AlertRecord::kSelect = "\"date\",\"originatorEid\",\"severity\",\"alertMsg\"";

namespace
{

std::string textOf(const json_t *response, unsigned int row, const char *parameter)
{
  const char *value = ZelRspUtil_getIndexedStringParam(response, row, parameter);
  return value ? value : "";
}

} // namespace

std::vector<AlertRecord> AlertRecord::readAll(const json_t *response)
{
  const int count = ZelRspUtil_numEntries(response);
  std::vector<AlertRecord> alerts(count > 0 ? count : 0);
  for (unsigned int row = 0; row < alerts.size(); ++row) {
    AlertRecord &alert = alerts[row];
    alert.instanceId =
        static_cast<unsigned int>(ZelRspUtil_getIndexedIntegerParam(response, row, "instanceId"));
    alert.date = ZelRspUtil_getIndexedIntegerParam(response, row, "date");
    alert.severity = textOf(response, row, "severity");
    if (const char *eid = ZelRspUtil_getIndexedStringParam(response, row, "originatorEid"))
      alert.originatorEid = eid;
    alert.message = textOf(response, row, "alertMsg");
  }
  return alerts;
}

std::string AlertRecord::dateText() const
{
  char buffer[64];
  Convert_dateTimeStampToString(date, buffer, sizeof buffer);
  return buffer;
}

std::string AlertRecord::severityText() const
{
  std::string word = severity;
  return Convert_alertSeverityDbStringToUiString(word);
}
