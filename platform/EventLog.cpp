// SPDX-License-Identifier: MIT
#include "EventLog.h"

#include <cstdint>
#include <cstdlib>
#include <syslog.h>
#include <unistd.h>

namespace
{

constexpr std::size_t kMaxTextLength = 8192; // a longer entry is cut; syslog daemons cut there too

std::string &programName()
{
  // openlog keeps the pointer that it is given, also while the process exits.
  static std::string *name = new std::string("nevo");
  return *name;
}

int syslogPriority(int level)
{
  switch (level) {
  case 1:
    return LOG_ERR;
  case 2:
    return LOG_WARNING;
  case 3:
    return LOG_NOTICE;
  default:
    return LOG_DEBUG;
  }
}

// Length of the well-formed UTF-8 sequence at a position and its code point; 0 if there is none.
std::size_t decodeUtf8(const std::string &text, std::size_t at, std::uint32_t &codePoint)
{
  static constexpr std::uint32_t kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(text[at]);
  const std::size_t length = lead < 0x80    ? 1
                             : lead >= 0xF8 ? 0
                             : lead >= 0xF0 ? 4
                             : lead >= 0xE0 ? 3
                             : lead >= 0xC0 ? 2
                                            : 0;
  if (length == 0 || at + length > text.size())
    return 0;
  codePoint = length == 1 ? lead : lead & (0x7FU >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if ((byte & 0xC0) != 0x80)
      return 0;
    codePoint = codePoint << 6 | (byte & 0x3FU);
  }
  const bool isSurrogate = codePoint >= 0xD800 && codePoint <= 0xDFFF;
  return codePoint < kSmallest[length] || codePoint > 0x10FFFF || isSurrogate ? 0 : length;
}

// Control characters, and the characters by which Unicode breaks a line or turns the direction of writing:
// with them a text could forge a second entry or command the reader's terminal.
bool isHarmful(std::uint32_t codePoint)
{
  return codePoint < 0x20 || (codePoint >= 0x7F && codePoint <= 0x9F) ||
         (codePoint >= 0x2028 && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
}

void appendEscaped(std::string &line, const std::string &bytes)
{
  static constexpr char kDigits[] = "0123456789abcdef";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    line += "\\x";
    line += kDigits[byte >> 4];
    line += kDigits[byte & 15];
  }
}

std::string harmless(const std::string &text)
{
  std::string line;
  for (std::size_t at = 0; at < text.size();) {
    if (at >= kMaxTextLength) {
      line += "...";
      break;
    }
    std::uint32_t codePoint = 0;
    const std::size_t length = decodeUtf8(text, at, codePoint);
    const std::size_t taken = length == 0 ? 1 : length;
    if (length == 0 || isHarmful(codePoint))
      appendEscaped(line, text.substr(at, taken));
    else
      line.append(text, at, taken);
    at += taken;
  }
  return line;
}

bool wantsStandardError()
{
  return std::getenv("NEVO_LOG_STDERR") || isatty(STDERR_FILENO);
}

} // namespace

void EventLog_init(const char *program)
{
  const std::string path = program ? program : "";
  const std::string name = path.substr(path.find_last_of('/') + 1);
  if (!name.empty())
    programName() = name;
  openlog(programName().c_str(), LOG_PID, LOG_DAEMON);
}

void EventLog_writeText(int level, int facility, const char *function, const std::string &text)
{
  const std::string entry = harmless(std::string(function ? function : "") + ": " + text);
  syslog(syslogPriority(level) | LOG_DAEMON, "[%d] %s", facility, entry.c_str());
  if (!wantsStandardError())
    return;
  const std::string line = std::to_string(level) + " " + entry + "\n";
  // One write per entry, so that entries of several threads do not mix. Nobody could be told of a failure.
  const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
  static_cast<void>(written);
}
