// SPDX-License-Identifier: MIT
#include "http/AccessLog.h"

#include <ctime>
#include <fcntl.h>
#include <poll.h>

namespace Wt
{
namespace Net
{

namespace
{

std::string quotable(const std::string &text)
{
  static const char digits[] = "0123456789abcdef";
  std::string safe;
  for (const char character : text.substr(0, 1024)) {
    const unsigned char c = static_cast<unsigned char>(character);
    if (c < 0x20 || c >= 0x7f || c == '"' || c == '\\') {
      safe += "\\x";
      safe += digits[c >> 4];
      safe += digits[c & 15];
    } else {
      safe += character;
    }
  }
  return safe;
}

std::string timeStamp()
{
  const std::time_t now = std::time(nullptr);
  std::tm tm = {};
  gmtime_r(&now, &tm);
  char text[40];
  return std::string(text, std::strftime(text, sizeof text, "[%Y-%m-%dT%H:%M:%SZ]", &tm));
}

} // namespace

AccessLog::AccessLog(const std::string &fileName) : fileName_(fileName)
{
  reopen();
}

void AccessLog::reopen()
{
  if (fileName_.empty() || fileName_ == "-")
    return;
  FileHandle file(::open(fileName_.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0640));
  usable_ = static_cast<bool>(file);
  if (usable_)
    file_ = std::move(file);
}

void AccessLog::write(const std::string &address, const std::string &method, const std::string &path,
                      int status, std::uint64_t bodySize)
{
  if (fileName_ == "-" || !usable_)
    return;
  const std::string line = address + " - - " + timeStamp() + " \"" + quotable(method) + " " + quotable(path) +
                           " HTTP/1.1\" " + std::to_string(status) + " " + std::to_string(bodySize) + "\n";
  pollfd ready = {file_ ? file_.get() : STDOUT_FILENO, POLLOUT, 0};
  if (::poll(&ready, 1, 0) == 1 && ::write(ready.fd, line.data(), line.size()) < 0)
    usable_ = fileName_.empty() || static_cast<bool>(file_);
}

} // namespace Net
} // namespace Wt
