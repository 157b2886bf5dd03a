// SPDX-License-Identifier: MIT
#ifndef TESTS_SYSLOG_RECORD_H_
#define TESTS_SYSLOG_RECORD_H_

#include <string>
#include <vector>

// What the program under test gave to syslog. The test program's own definitions of the C library's
// functions take the place of the real ones.
class SyslogRecord
{
public:
  struct Entry {
    int severity;
    std::string text;
  };
  static std::vector<Entry> &entries();
  static std::string &ident();
  static void clear() { entries().clear(); }
};

#endif // TESTS_SYSLOG_RECORD_H_
