// SPDX-License-Identifier: MIT
#include "session/Page.h"

#include "dom/JsonText.h"
#include "session/WidgetAccess.h"

#include <Wt/WContainerWidget>
#include <algorithm>

namespace Wt
{
namespace Engine
{

Page::~Page() = default;

void Page::mark(WWebWidget &widget)
{
  if (widget.dirtyPlace_)
    return;
  marked_.push_back(&widget);
  widget.dirtyPlace_ = static_cast<std::uint32_t>(marked_.size());
}

void Page::unmark(WWebWidget &widget)
{
  if (!widget.dirtyPlace_)
    return;
  marked_[widget.dirtyPlace_ - 1] = nullptr;
  widget.dirtyPlace_ = 0;
}

void Page::render()
{
  if (root_ && !WidgetAccess::element(root_))
    body().setChildren({WidgetAccess::render(root_, *this)});
  // Rendering may mark further widgets, which are then done in the same run.
  for (std::size_t i = 0; i < marked_.size(); ++i) {
    if (WWebWidget *widget = marked_[i]) {
      marked_[i] = nullptr;
      widget->dirtyPlace_ = 0;
      widget->renderAgain();
    }
  }
  marked_.clear();
  if (focusWanted_)
    grantFocus();
}

std::string Page::takeUpdate(std::uint64_t number)
{
  std::string operations = take();
  if (!operations.empty())
    for (const Dom::Element::Id id : freshValues_)
      valueUpdates_[id] = number;
  freshValues_.clear();
  return operations;
}

// --- Windows
// -----------------------------------------------------------------------------------------------------

void Page::pushWindow(WWidget *window, bool modal)
{
  removeWindow(window);
  windows_.push_back(Window{window, modal});
}

void Page::removeWindow(WWidget *window)
{
  windows_.erase(std::remove_if(windows_.begin(), windows_.end(),
                                [window](const Window &w) { return w.widget == window; }),
                 windows_.end());
}

WWidget *Page::topWindow() const
{
  return windows_.empty() ? nullptr : windows_.back().widget;
}

bool Page::exposed(const WWidget *widget) const
{
  std::size_t first = windows_.size();
  while (first > 0 && !windows_[first - 1].modal)
    --first;
  if (first == 0)
    return true;
  for (const WWidget *w = widget; w; w = w->parent())
    for (std::size_t i = first - 1; i < windows_.size(); ++i)
      if (windows_[i].widget == w)
        return true;
  return false;
}

// --- Focus
// -------------------------------------------------------------------------------------------------------

bool Page::hasFocus(const WWebWidget &widget) const
{
  if (focusWanted_)
    return focusWanted_ == &widget;
  const Dom::Element *focused = focus_ ? find(focus_) : nullptr;
  return focused && WidgetAccess::ownerOf(focused) == &widget;
}

void Page::focusReported(Dom::Element::Id id)
{
  focus_ = id;
  // Who moves on takes the claim of a widget that was never shown away.
  if (id != 0)
    focusWanted_ = nullptr;
}

void Page::wantFocus(WWebWidget &widget)
{
  focusWanted_ = &widget;
}

void Page::giveUpFocus(WWebWidget &widget)
{
  if (!hasFocus(widget))
    return;
  if (Dom::Element *focused = focus_ ? find(focus_) : nullptr)
    focused->call("blur");
  focusWanted_ = nullptr;
  focus_ = 0;
}

void Page::forget(WWebWidget &widget)
{
  if (focusWanted_ == &widget)
    focusWanted_ = nullptr;
}

/// A widget that is not shown yet keeps its claim until it is.
void Page::grantFocus()
{
  Dom::Element *element = focusWanted_->focusElement();
  if (!element || !element->attached())
    return;
  element->call("focus");
  focus_ = element->id();
  focusWanted_ = nullptr;
}

// --- Values
// ------------------------------------------------------------------------------------------------------

void Page::valueSet(Dom::Element::Id id)
{
  freshValues_.push_back(id);
}

bool Page::valueAccepted(Dom::Element::Id id, std::uint64_t seen) const
{
  if (std::find(freshValues_.begin(), freshValues_.end(), id) != freshValues_.end())
    return false;
  const auto found = valueUpdates_.find(id);
  return found == valueUpdates_.end() || seen >= found->second;
}

void Page::seen(std::uint64_t number)
{
  if (number <= seen_)
    return;
  seen_ = number;
  for (auto i = valueUpdates_.begin(); i != valueUpdates_.end();)
    i = i->second <= number ? valueUpdates_.erase(i) : std::next(i);
}

// --- The page as a whole
// -----------------------------------------------------------------------------------------

void Page::textCommand(const char *name, const std::string &text)
{
  std::string argument;
  Dom::appendJsonString(argument, text);
  command(name, argument);
}

void Page::setTitle(const std::string &title)
{
  if (title == title_)
    return;
  title_ = title;
  textCommand("title", title);
}

void Page::setLanguage(const std::string &language)
{
  if (language == language_)
    return;
  language_ = language;
  textCommand("lang", language);
}

void Page::addStyleSheet(const std::string &url)
{
  textCommand("style", url);
}

void Page::setHtmlClass(const std::string &classes)
{
  if (classes == htmlClass_)
    return;
  htmlClass_ = classes;
  textCommand("htmlClass", classes);
}

void Page::setTexts(const std::string &texts)
{
  if (texts == texts_)
    return;
  texts_ = texts;
  command("texts", texts);
}

} // namespace Engine
} // namespace Wt
