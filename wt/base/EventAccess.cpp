// SPDX-License-Identifier: MIT
#include "base/EventAccess.h"

#include <Wt/WEvent>
#include <Wt/WSignal>

namespace Wt
{
namespace Engine
{

void EventAccess::dispatch(EventSignalBase &signal, const RawEvent &event)
{
  signal.dispatch(event);
}

WEvent EventAccess::makeEvent(int type, void *context)
{
  return WEvent(static_cast<EventType>(type), context);
}

void *EventAccess::context(const WEvent &event)
{
  return event.context_;
}

} // namespace Engine
} // namespace Wt
