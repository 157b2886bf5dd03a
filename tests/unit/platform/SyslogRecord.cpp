// SPDX-License-Identifier: MIT
#include "SyslogRecord.h"

#include <cstdarg>
#include <cstdio>

std::vector<SyslogRecord::Entry> &SyslogRecord::entries()
{
  static std::vector<Entry> list;
  return list;
}

std::string &SyslogRecord::ident()
{
  static std::string name;
  return name;
}

namespace
{

void record(int priority, const char *format, va_list arguments)
{
  char text[16384];
  std::vsnprintf(text, sizeof text, format, arguments);
  SyslogRecord::entries().push_back({priority & 7, text});
}

} // namespace

extern "C" {

void openlog(const char *ident, int, int)
{
  SyslogRecord::ident() = ident;
}

void syslog(int priority, const char *format, ...)
{
  va_list arguments;
  va_start(arguments, format);
  record(priority, format, arguments);
  va_end(arguments);
}

// What a fortified build calls instead.
void __syslog_chk(int priority, int, const char *format, ...)
{
  va_list arguments;
  va_start(arguments, format);
  record(priority, format, arguments);
  va_end(arguments);
}
}
