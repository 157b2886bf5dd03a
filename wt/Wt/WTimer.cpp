// SPDX-License-Identifier: MIT
#include "base/EventAccess.h"
#include "base/RawEvent.h"
#include "session/Session.h"

#include <Wt/WTimer>

namespace Wt
{

WTimer::WTimer(WObject *parent) : WObject(parent), timeout_("timeout", this) {}

WTimer::~WTimer()
{
  stop();
}

void WTimer::start()
{
  stop();
  Engine::Session *session = Engine::Session::current();
  if (!session)
    return;
  // Connected late, so that it runs before slots that were connected after the first start, and after the
  // others.
  if (!stopConnected_) {
    stopConnected_ = true;
    timeout_.connect(this, &WTimer::stopAfterShot);
  }
  active_ = true;
  ticket_ = session->timers().start(*this, interval_);
}

void WTimer::stop()
{
  if (!active_)
    return;
  active_ = false;
  if (Engine::Session *session = Engine::Session::current())
    session->timers().stop(ticket_);
  ticket_ = 0;
}

void WTimer::tick()
{
  Engine::EventAccess::dispatch(timeout_, Engine::RawEvent());
}

void WTimer::stopAfterShot()
{
  if (singleShot_)
    stop();
}

} // namespace Wt
