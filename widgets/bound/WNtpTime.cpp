// SPDX-License-Identifier: MIT
#include "WNtpTime.h"

#include <Wt/WString>
#include <ctime>

WNtpTime::WNtpTime(const char *resourceName, const char *parameterName, bool isIndexed,
                   Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent), WWidgetZel(resourceName, parameterName, isIndexed)
{
}

bool WNtpTime::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                bool force)
{
  if (keepsEdit(force))
    return false;
  unsigned int seconds = 0;
  const Agreement agreement = isOfOneRecord(indexes) ? readCommon(indexes, seconds, errors) : NoRecords;
  show(seconds);
  return endRead(agreement);
}

void WNtpTime::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsEdit(force))
    return;
  unsigned int seconds = 0;
  const Agreement agreement = isOfOneRecord(indexes) ? extractCommon(response, indexes, seconds) : NoRecords;
  show(seconds);
  endBulkRead(agreement);
}

void WNtpTime::show(unsigned int seconds)
{
  const std::time_t time = seconds;
  std::tm utc = {};
  char text[32] = "";
  if (seconds != 0 && gmtime_r(&time, &utc))
    std::strftime(text, sizeof text, "%Y-%m-%d %H:%M:%S UTC", &utc);
  setText(Wt::WString::fromUTF8(text));
}
