// SPDX-License-Identifier: MIT
#include "ClientOptions.h"

#include <atomic>
#include <charconv>
#include <cstdlib>
#include <cstring>

namespace zelclient
{

namespace
{
constexpr int kDefaultTimeoutMs = 3000;
constexpr int kLongestTimeoutMs = 10 * 60 * 1000;
std::atomic<int> overridingTimeoutMs{0};
} // namespace

std::string socketPath()
{
  const char *path = std::getenv("NEVO_STORE_SOCKET");
  return path && *path ? path : "/run/nevo/store.sock";
}

int requestTimeoutMs()
{
  int timeout = overridingTimeoutMs.load(std::memory_order_relaxed);
  if (timeout > 0)
    return timeout;
  const char *text = std::getenv("NEVO_STORE_TIMEOUT_MS");
  int value = 0;
  if (text && std::from_chars(text, text + std::strlen(text), value).ec == std::errc() && value > 0 &&
      value <= kLongestTimeoutMs)
    return value;
  return kDefaultTimeoutMs;
}

void setRequestTimeoutMs(int milliseconds)
{
  overridingTimeoutMs = milliseconds;
}

} // namespace zelclient
