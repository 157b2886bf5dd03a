// SPDX-License-Identifier: MIT
#include "http/LineLimit.h"

#include "base/Log.h"

namespace Wt
{
namespace Net
{

void LineLimit::warn(NetworkLoop::TimePoint now, const std::string &text)
{
  if (!begun_ || now - began_ >= std::chrono::minutes(1)) {
    if (lines_ > kLinesPerMinute)
      Engine::log(Engine::LogLevel::Warning, "http",
                  std::to_string(lines_ - kLinesPerMinute) + " more warnings were left out.");
    began_ = now;
    begun_ = true;
    lines_ = 0;
  }
  if (++lines_ <= kLinesPerMinute)
    Engine::log(Engine::LogLevel::Warning, "http", text);
}

} // namespace Net
} // namespace Wt
