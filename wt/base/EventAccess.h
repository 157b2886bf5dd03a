// SPDX-License-Identifier: MIT
#ifndef WT_BASE_EVENT_ACCESS_H_
#define WT_BASE_EVENT_ACCESS_H_

#include "RawEvent.h"
#include "SignalForward.h"

#include <type_traits>

namespace Wt
{

class EventSignalBase;
class WEvent;

namespace Engine
{

/// The engine's way to emit browser signals and to make event objects, which the public API does not offer.
struct EventAccess {
  /// Emits the signal with what the browser told. Arguments that do not fit drop the event.
  static void dispatch(EventSignalBase &signal, const RawEvent &event);

  /// An event object E (WMouseEvent, WKeyEvent or NoClass) of what the browser told.
  template <typename E> static E make(const RawEvent &event)
  {
    if constexpr (std::is_same_v<E, NoClass>)
      return static_cast<void>(event), NoClass();
    else
      return E(event);
  }

  /// The event that WApplication::notify gets; `context` is the engine's own. `type` is an EventType.
  static WEvent makeEvent(int type, void *context);
  static void *context(const WEvent &event);
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_EVENT_ACCESS_H_
