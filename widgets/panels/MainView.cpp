// SPDX-License-Identifier: MIT
#include "MainView.h"

#include <Wt/WApplication>
#include <functional>

namespace
{

const int kRefreshMilliseconds = 5000;

} // namespace

MainView::MainView()
{
  refreshTimer.setInterval(kRefreshMilliseconds);
  refreshTimer.timeout().connect(std::bind(&MainView::refreshTimerTimeout, this));
}

void MainView::enableAutoRefresh()
{
  if (!refreshTimer.isActive())
    refreshTimer.start();
}

void MainView::disableAutoRefresh()
{
  if (refreshTimer.isActive())
    refreshTimer.stop();
}

void MainView::refreshTimerTimeout()
{
  Wt::WApplication *application = Wt::WApplication::instance();
  if (!application)
    return;
  Wt::WApplication::UpdateLock lock(application);
  if (lock)
    readAnew();
}
