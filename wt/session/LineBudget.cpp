// SPDX-License-Identifier: MIT
#include "session/LineBudget.h"

#include "base/Log.h"

namespace Wt
{
namespace Engine
{

namespace
{

const unsigned kLinesPerMinute = 10;
const std::size_t kLongestName = 64;

} // namespace

void LineBudget::write(const std::string &line, Scheduler::TimePoint now)
{
  if (now - minute_ >= std::chrono::minutes(1)) {
    if (left_ > 0)
      log(LogLevel::Info, "session", "and " + std::to_string(left_) + " lines like those before it");
    minute_ = now;
    written_ = left_ = 0;
  }
  if (written_ == kLinesPerMinute) {
    ++left_;
    return;
  }
  ++written_;
  log(LogLevel::Info, "session", line);
}

std::string LineBudget::cut(std::string_view text)
{
  if (text.size() <= kLongestName)
    return std::string(text);
  std::size_t end = kLongestName;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xc0) == 0x80)
    --end;
  return std::string(text.substr(0, end)) + "...";
}

} // namespace Engine
} // namespace Wt
