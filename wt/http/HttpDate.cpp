// SPDX-License-Identifier: MIT
#include "http/HttpDate.h"

#include <cstdio>

namespace Wt
{
namespace Net
{

namespace
{

const char *const kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
const char *const kMonths[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

/// The number that the digits at that place make, or -1.
int number(std::string_view text, std::size_t at, std::size_t digits)
{
  int value = 0;
  for (std::size_t i = at; i < at + digits; ++i) {
    if (text[i] < '0' || text[i] > '9')
      return -1;
    value = value * 10 + (text[i] - '0');
  }
  return value;
}

} // namespace

std::string httpDate(std::time_t time)
{
  std::tm tm = {};
  if (!gmtime_r(&time, &tm) || tm.tm_year > 8099 || tm.tm_year < 0)
    return std::string();
  char text[64];
  std::snprintf(text, sizeof text, "%s, %02d %s %04d %02d:%02d:%02d GMT", kDays[tm.tm_wday], tm.tm_mday,
                kMonths[tm.tm_mon], tm.tm_year + 1900, tm.tm_hour, tm.tm_min, tm.tm_sec);
  return text;
}

bool parseHttpDate(std::string_view text, std::time_t &time)
{
  if (text.size() != 29)
    return false;
  std::tm tm = {};
  tm.tm_mday = number(text, 5, 2);
  tm.tm_mon = -1;
  for (int month = 0; month < 12; ++month)
    if (text.substr(8, 3) == kMonths[month])
      tm.tm_mon = month;
  tm.tm_year = number(text, 12, 4) - 1900;
  tm.tm_hour = number(text, 17, 2);
  tm.tm_min = number(text, 20, 2);
  tm.tm_sec = number(text, 23, 2);
  if (tm.tm_mon < 0 || tm.tm_mday < 1 || tm.tm_year < 0 || tm.tm_hour < 0 || tm.tm_min < 0 || tm.tm_sec < 0)
    return false;
  time = timegm(&tm);
  return httpDate(time) == text;
}

} // namespace Net
} // namespace Wt
