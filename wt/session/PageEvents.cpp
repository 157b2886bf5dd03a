// SPDX-License-Identifier: MIT
#include "session/PageEvents.h"

#include <algorithm>

namespace Wt
{
namespace Engine
{

PageEvents::PageEvents(const Scheduler &scheduler, Page &page, std::string name)
    : scheduler_(scheduler), page_(page), name_(std::move(name))
{
}

void PageEvents::gather(ClientMessage message, EventParts &parts)
{
  std::stable_partition(message.events.begin(), message.events.end(),
                        [](const ClientMessage::Event &event) { return event.data.name == "change"; });
  // A function has to be copyable, which a message need not be copied for.
  const auto shared = std::make_shared<ClientMessage>(std::move(message));
  parts.add([this, shared] { applyValues(*shared); });
  for (std::size_t i = 0; i < shared->events.size(); ++i)
    parts.add([this, shared, i] { dispatch(shared->events[i]); });
}

void PageEvents::applyValues(const ClientMessage &message)
{
  if (message.hasFocus)
    page_.focusReported(page_.find(message.focus) ? message.focus : 0);
  for (const auto &value : message.values) {
    Dom::Element *element = page_.find(value.first);
    if (element && element->attached() && element->owner() && page_.valueAccepted(value.first, message.seen))
      element->owner()->domValue(*element, value.second);
  }
}

void PageEvents::dispatch(const ClientMessage::Event &event)
{
  Dom::Element *element = page_.find(event.element);
  const std::string &name = event.data.name;
  const std::string listener = '@' + name;
  const std::string behaviour = '!' + name.substr(0, name.find(':'));
  if (!element || !element->attached() || !element->owner())
    complain(event, "for a widget that is gone");
  else if (!element->get(listener.c_str()) && !element->get(behaviour.c_str()))
    complain(event, "that nobody listens to");
  else
    element->owner()->domEvent(*element, event.data);
}

void PageEvents::complain(const ClientMessage::Event &event, const char *why)
{
  lines_.write(name_ + ": event '" + LineBudget::cut(event.data.name) + "' " + why, scheduler_.now());
}

} // namespace Engine
} // namespace Wt
