// SPDX-License-Identifier: MIT
#include "WRefreshTimer.h"

#include <Wt/WApplication>

namespace
{

const int kRefreshMilliseconds = 5000;

} // namespace

void WRefreshTimer::setUp()
{
  timer.setInterval(kRefreshMilliseconds);
}

void WRefreshTimer::enable()
{
  if (!timer.isActive())
    timer.start();
}

void WRefreshTimer::disable()
{
  if (timer.isActive())
    timer.stop();
}

void WRefreshTimer::locked(const std::function<void()> &read)
{
  Wt::WApplication *application = Wt::WApplication::instance();
  if (!application)
    return;
  Wt::WApplication::UpdateLock lock(application);
  if (lock)
    read();
}
