// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_PAGE_EVENTS_H_
#define WT_SESSION_PAGE_EVENTS_H_

#include "session/ClientMessage.h"
#include "session/EventParts.h"
#include "session/LineBudget.h"
#include "session/Page.h"

#include <string>

namespace Wt
{
namespace Engine
{

/// Carries what the page tells to the widgets that it is for. Not thread safe: belongs to the session.
class PageEvents
{
public:
  /// `name` of the session, for the log.
  PageEvents(const Scheduler &scheduler, Page &page, std::string name);

  /// Takes a message of events apart: values count first, then what the user changed, then the rest in order.
  void gather(ClientMessage message, EventParts &parts);

private:
  void applyValues(const ClientMessage &message);
  void dispatch(const ClientMessage::Event &event);
  void complain(const ClientMessage::Event &event, const char *why);

  const Scheduler &scheduler_;
  Page &page_;
  const std::string name_;
  LineBudget lines_;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_PAGE_EVENTS_H_
