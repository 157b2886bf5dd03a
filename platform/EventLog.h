// SPDX-License-Identifier: MIT
#ifndef PLATFORM_EVENT_LOG_H_
#define PLATFORM_EVENT_LOG_H_

#include <cstddef>
#include <string>
#include <type_traits>

/// The switch's logger. Entries go to syslog, and to standard error as well when that is a terminal or the
/// environment variable NEVO_LOG_STDERR is set: one line "LEVEL function: text" per entry.
///
/// Texts that come from the store or from a browser are often passed as the format. So a format is never
/// given to printf: it is matched against the arguments that the call really has, whose types are known.

/// One argument of a log entry: a number, a text or an address. Texts are not copied; they need only live
/// until the call returns.
class EventLogArgument
{
public:
  enum class Kind { Integer, Real, Text, Address };

  template <typename T, typename = std::enable_if_t<std::is_integral_v<T> || std::is_enum_v<T>>>
  EventLogArgument(T value)
      : kind(Kind::Integer), bits(static_cast<unsigned long long>(value)),
        width(sizeof(T) < sizeof(int) ? sizeof(int) : sizeof(T))
  {
  }
  EventLogArgument(float value) : kind(Kind::Real), real(value) {}
  EventLogArgument(double value) : kind(Kind::Real), real(value) {}
  EventLogArgument(const char *value) : kind(Kind::Text), text(value) {}
  EventLogArgument(const std::string &value) : kind(Kind::Text), text(value.c_str()) {}
  EventLogArgument(const void *value) : kind(Kind::Address), address(value) {}

  Kind kind;
  unsigned long long bits = 0; // the integer, sign-extended
  std::size_t width = 0;       // bytes of the integer after C's promotion to int
  double real = 0;
  const char *text = nullptr; // may be null, which prints as "(null)"
  const void *address = nullptr;
};

/// Names the program in syslog; a path is cut to its last part. Called once at the start of main.
void EventLog_init(const char *program);

/// The text that a format and its arguments make, as printf would make it for a format that fits them.
/// A directive that has no argument, an argument of another kind, or that would write to memory ("%n")
/// stands in the text as it was written; so does everything in a format without arguments, "%%" included.
std::string EventLog_format(const char *format, const EventLogArgument *arguments, std::size_t count);

/// Writes one entry whose text is complete. See EventLog_write.
void EventLog_writeText(int level, int facility, const char *function, const std::string &text);

/// Writes one entry. Levels: 1 errors, 2 warnings and notable outcomes, 3 log in, log out and start-up,
/// 4 traces and unexpected internal values. The facility is the number of the part of the switch that
/// speaks; this interface is 7. Any text is safe as a format.
template <typename... Arguments>
void EventLog_write(int level, int facility, const char *function, const char *format,
                    const Arguments &...arguments)
{
  if constexpr (sizeof...(Arguments) == 0) {
    EventLog_writeText(level, facility, function, EventLog_format(format, nullptr, 0));
  } else {
    const EventLogArgument list[] = {EventLogArgument(arguments)...};
    EventLog_writeText(level, facility, function, EventLog_format(format, list, sizeof...(Arguments)));
  }
}

#endif // PLATFORM_EVENT_LOG_H_
