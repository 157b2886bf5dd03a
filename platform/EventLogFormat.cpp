// SPDX-License-Identifier: MIT
#include "EventLog.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace
{

// A directive that asks for more than this is no honest one, and could cost any amount of memory.
constexpr int kMaxFieldWidth = 1024;

struct Directive {
  std::string flags;
  int width = 0;
  int precision = -1;
  std::string length;
  char conversion = 0;
  const char *end = nullptr; // behind the directive
};

// Hands the arguments of a call out in order, and none beyond the last.
class ArgumentList
{
public:
  ArgumentList(const EventLogArgument *first, std::size_t count) : next_(first), end_(first + count) {}
  const EventLogArgument *take() { return next_ == end_ ? nullptr : next_++; }

private:
  const EventLogArgument *next_;
  const EventLogArgument *end_;
};

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

bool isOneOf(char c, const char *set)
{
  return c && std::strchr(set, c);
}

// The integer at its own width: sign-extended, or cut to the bits that an unsigned value of it would have.
long long signedValue(const EventLogArgument &argument)
{
  if (argument.width == sizeof(int))
    return static_cast<int>(argument.bits);
  return static_cast<long long>(argument.bits);
}

unsigned long long unsignedValue(const EventLogArgument &argument)
{
  if (argument.width == sizeof(int))
    return static_cast<unsigned int>(argument.bits);
  return argument.bits;
}

// A width or precision: digits, or "*" with an integer argument. False if it is out of bounds.
bool readNumber(const char *&at, ArgumentList &arguments, int &value)
{
  value = 0;
  if (*at == '*') {
    ++at;
    const EventLogArgument *argument = arguments.take();
    if (!argument || argument->kind != EventLogArgument::Kind::Integer)
      return false;
    const long long given = signedValue(*argument);
    if (given > kMaxFieldWidth || given < -kMaxFieldWidth)
      return false;
    value = static_cast<int>(given);
    return true;
  }
  for (; isDigit(*at); ++at) {
    value = value * 10 + (*at - '0');
    if (value > kMaxFieldWidth)
      return false;
  }
  return true;
}

// Reads what follows a "%". False if it is no directive that can be printed.
bool readDirective(const char *at, ArgumentList &arguments, Directive &directive)
{
  for (; isOneOf(*at, "-+ #0"); ++at) {
    if (directive.flags.find(*at) == std::string::npos)
      directive.flags += *at;
  }
  if (!readNumber(at, arguments, directive.width))
    return false;
  if (*at == '.') {
    ++at;
    if (!readNumber(at, arguments, directive.precision))
      return false;
  }
  for (; isOneOf(*at, "hljztq") && directive.length.size() < 2; ++at)
    directive.length += *at;
  if (!isOneOf(*at, "diouxXcsfFeEgGaAp"))
    return false;
  directive.conversion = *at;
  directive.end = at + 1;
  return true;
}

template <typename Value> std::string print(const Directive &directive, const char *length, Value value)
{
  const std::string format = "%" + directive.flags + "*.*" + length + directive.conversion;
  const int size = std::snprintf(nullptr, 0, format.c_str(), directive.width, directive.precision, value);
  if (size < 0)
    return std::string();
  std::string text(static_cast<std::size_t>(size) + 1, '\0');
  std::snprintf(&text[0], text.size(), format.c_str(), directive.width, directive.precision, value);
  text.resize(static_cast<std::size_t>(size));
  return text;
}

std::string printInteger(const Directive &directive, const EventLogArgument &argument)
{
  if (directive.conversion == 'd' || directive.conversion == 'i') {
    long long value = signedValue(argument);
    if (directive.length == "hh")
      value = static_cast<std::int8_t>(value); // NOLINT(bugprone-signed-char-misuse)
    else if (directive.length == "h")
      value = static_cast<short>(value);
    return print(directive, "ll", value);
  }
  unsigned long long value = unsignedValue(argument);
  if (directive.length == "hh")
    value = static_cast<unsigned char>(value);
  else if (directive.length == "h")
    value = static_cast<unsigned short>(value);
  return print(directive, "ll", value);
}

std::string printDirective(const Directive &directive, const EventLogArgument *argument, bool &fits)
{
  using Kind = EventLogArgument::Kind;
  fits = argument != nullptr;
  if (!fits)
    return std::string();
  if (isOneOf(directive.conversion, "diouxX") && argument->kind == Kind::Integer)
    return printInteger(directive, *argument);
  if (directive.conversion == 'c' && argument->kind == Kind::Integer)
    return print(directive, "", static_cast<int>(argument->bits));
  if (directive.conversion == 's' && argument->kind == Kind::Text)
    return print(directive, "", argument->text ? argument->text : "(null)");
  if (isOneOf(directive.conversion, "fFeEgGaA") && argument->kind == Kind::Real)
    return print(directive, "", argument->real);
  if (directive.conversion == 'p' && argument->kind == Kind::Address)
    return print(directive, "", argument->address);
  if (directive.conversion == 'p' && argument->kind == Kind::Text)
    return print(directive, "", static_cast<const void *>(argument->text));
  fits = false;
  return std::string();
}

} // namespace

std::string EventLog_format(const char *format, const EventLogArgument *arguments, std::size_t count)
{
  if (!format)
    return std::string();
  if (count == 0)
    return format;
  std::string text;
  ArgumentList list(arguments, count);
  for (const char *at = format; *at;) {
    if (*at != '%') {
      text += *at++;
      continue;
    }
    if (at[1] == '%') {
      text += '%';
      at += 2;
      continue;
    }
    Directive directive;
    if (readDirective(at + 1, list, directive)) {
      bool fits = false;
      const std::string printed = printDirective(directive, list.take(), fits);
      text += fits ? printed : std::string(at, directive.end);
      at = directive.end;
    } else {
      text += *at++;
    }
  }
  return text;
}
