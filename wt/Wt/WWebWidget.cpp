// SPDX-License-Identifier: MIT
#include "base/EventAccess.h"
#include "base/Log.h"
#include "base/RawEvent.h"
#include "base/StyleWords.h"
#include "dom/Document.h"
#include "layout/WidgetExtras.h"
#include "session/Page.h"
#include "session/Session.h"
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WStackedWidget>
#include <Wt/WTabWidget>
#include <Wt/WWebWidget>
#include <algorithm>
#include <charconv>
#include <cstring>

namespace Wt
{

namespace
{

/// Events that tell what the browser shows, and not what a user wants: they count for a disabled widget too.
bool tellsOfLayout(const std::string &event)
{
  return event == "size" || event == "table:scroll";
}

/// True if the widget is not shown, for itself or with what it lies in, so that nobody can have meant it. It
/// hears all the same that the focus has left it, and how its upload goes on.
bool refusesAsHidden(const WWidget *widget, const std::string &event)
{
  if (event == "blur" || event.rfind("upload:", 0) == 0)
    return false;
  while (widget && !widget->isHidden())
    widget = widget->parent();
  return widget != nullptr;
}

/// Names of attributes that set an attribute and nothing else.
bool plainAttributeName(const std::string &name)
{
  const auto letter = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
  const auto inner = [&](char c) { return letter(c) || (c >= '0' && c <= '9') || std::strchr("-_:.", c); };
  return !name.empty() && letter(name[0]) && std::all_of(name.begin(), name.end(), inner) &&
         (name.size() < 2 || (name[0] | 32) != 'o' || (name[1] | 32) != 'n');
}

} // namespace

WWebWidget::WWebWidget(WContainerWidget *parent) : WWidget(parent)
{
  if (parent)
    parent->addWidget(this);
}

WWebWidget::~WWebWidget()
{
  dropElement();
  if (Engine::Session *session = Engine::Session::current())
    session->page().forget(*this);
}

Engine::WidgetExtras &WWebWidget::rare()
{
  if (!rare_)
    rare_ = std::make_unique<Engine::WidgetExtras>();
  return *rare_;
}

Engine::WidgetBox &WWebWidget::box()
{
  Engine::WidgetExtras &r = rare();
  if (!r.box)
    r.box = std::make_unique<Engine::WidgetBox>();
  return *r.box;
}

void WWebWidget::setFlag(Flag flag, bool on)
{
  flags_ = static_cast<std::uint16_t>(on ? flags_ | flag : flags_ & ~flag);
}

void WWebWidget::repaint()
{
  if (element_ && !dirtyPlace_)
    Engine::Page::of(*element_).mark(*this);
}

WWebWidget *WWebWidget::widgetAbove() const
{
  for (WWidget *above = parent(); above; above = above->parent())
    if (WWebWidget *web = above->webWidget(); web && web != this)
      return web;
  return nullptr;
}

// --- Sizes
// -------------------------------------------------------------------------------------------------------

void WWebWidget::resize(const WLength &newWidth, const WLength &newHeight)
{
  const WLength w = Engine::WidgetBox::positive(newWidth);
  const WLength h = Engine::WidgetBox::positive(newHeight);
  if (w == width() && h == height())
    return;
  box().width = w;
  box().height = h;
  repaint();
}

WLength WWebWidget::width() const
{
  return rare_ && rare_->box ? rare_->box->width : WLength();
}

WLength WWebWidget::height() const
{
  return rare_ && rare_->box ? rare_->box->height : WLength();
}

void WWebWidget::setMinimumSize(const WLength &width, const WLength &height)
{
  box().minimumWidth = Engine::WidgetBox::positive(width);
  box().minimumHeight = Engine::WidgetBox::positive(height);
  repaint();
}

WLength WWebWidget::minimumWidth() const
{
  return rare_ && rare_->box ? rare_->box->minimumWidth : WLength(0);
}

WLength WWebWidget::minimumHeight() const
{
  return rare_ && rare_->box ? rare_->box->minimumHeight : WLength(0);
}

void WWebWidget::setMaximumSize(const WLength &width, const WLength &height)
{
  box().maximumWidth = Engine::WidgetBox::positive(width);
  box().maximumHeight = Engine::WidgetBox::positive(height);
  repaint();
}

WLength WWebWidget::maximumWidth() const
{
  return rare_ && rare_->box ? rare_->box->maximumWidth : WLength();
}

WLength WWebWidget::maximumHeight() const
{
  return rare_ && rare_->box ? rare_->box->maximumHeight : WLength();
}

void WWebWidget::setMargin(const WLength &margin, WFlags<Side> sides)
{
  box().setMargin(margin, sides);
  repaint();
}

WLength WWebWidget::margin(Side side) const
{
  return rare_ && rare_->box ? rare_->box->margin(side) : WLength(0);
}

void WWebWidget::setVerticalAlignment(AlignmentFlag alignment, const WLength &length)
{
  if (!Engine::WidgetBox::isVertical(alignment)) {
    Engine::log(Engine::LogLevel::Error, "WWebWidget",
                "setVerticalAlignment: a horizontal alignment was given");
    return;
  }
  box().verticalAlignment = alignment;
  box().verticalLength = length;
  box().verticalSet = true;
  repaint();
}

AlignmentFlag WWebWidget::verticalAlignment() const
{
  return rare_ && rare_->box ? rare_->box->verticalAlignment : AlignBaseline;
}

// --- Hidden, disabled, inline
// ----------------------------------------------------------------------------------------

void WWebWidget::setHidden(bool hidden, const WAnimation &animation)
{
  if (hidden == isHidden())
    return;
  setFlag(HiddenFlag, hidden);
  if (!animation.empty())
    rare().animation = std::make_unique<WAnimation>(animation);
  else if (rare_)
    rare_->animation.reset();
  WWebWidget *above = widgetAbove();
  const auto *container = dynamic_cast<const WContainerWidget *>(above);
  if (element_)
    repaint();
  // A layout has no handles beside what is hidden.
  if (above && (!element_ || (container && container->layout())))
    above->repaint();
}

bool WWebWidget::isVisible() const
{
  const WWidget *top = this;
  for (const WWidget *w = this; w; w = w->parent()) {
    if (w->isHidden())
      return false;
    top = w;
  }
  const WApplication *application = WApplication::instance();
  return application && top == Engine::WidgetAccess::domRoot(application);
}

void WWebWidget::setDisabled(bool disabled)
{
  const bool before = isEnabled();
  setFlag(DisabledFlag, disabled);
  const bool now = isEnabled();
  if (now != before)
    propagateSetEnabled(now);
}

bool WWebWidget::isEnabled() const
{
  for (const WWidget *w = this; w; w = w->parent())
    if (w->isDisabled())
      return false;
  return true;
}

void WWebWidget::propagateSetEnabled(bool enabled)
{
  toggleStyleClass("Wt-disabled", !enabled);
  repaint();
  for (WObject *child : children()) {
    auto *widget = dynamic_cast<WWidget *>(child);
    if (widget && !widget->isDisabled())
      widget->propagateSetEnabled(enabled);
  }
}

void WWebWidget::setInline(bool isInline)
{
  if (isInline == this->isInline())
    return;
  setFlag(InlineFlag, isInline);
  repaint();
}

// --- Classes, attributes, tool tips
// --------------------------------------------------------------------------------

void WWebWidget::setStyleClass(const WString &styleClass)
{
  std::string classes = styleClass.toUTF8();
  if (!rare_ && classes.empty())
    return;
  rare().styleClass = std::move(classes);
  repaint();
}

WString WWebWidget::styleClass() const
{
  return rare_ ? WString::fromUTF8(rare_->styleClass) : WString();
}

void WWebWidget::addStyleClass(const WString &styleClass, bool)
{
  if (Engine::StyleWords::add(rare().styleClass, styleClass.toUTF8()))
    repaint();
}

void WWebWidget::removeStyleClass(const WString &styleClass, bool)
{
  if (!rare_)
    return;
  std::string left = Engine::StyleWords::without(rare_->styleClass, styleClass.toUTF8());
  if (left == rare_->styleClass)
    return;
  rare_->styleClass = std::move(left);
  repaint();
}

bool WWebWidget::hasStyleClass(const WString &styleClass) const
{
  return rare_ && Engine::StyleWords::contains(rare_->styleClass, styleClass.toUTF8());
}

void WWebWidget::setAttributeValue(const std::string &name, const WString &value)
{
  if (!plainAttributeName(name)) {
    Engine::log(Engine::LogLevel::Error, "WWebWidget", "setAttributeValue: '" + name + "' cannot be set");
    return;
  }
  auto &attributes = rare().attributes;
  const auto known =
      std::find_if(attributes.begin(), attributes.end(), [&](const auto &a) { return a.first == name; });
  if (known == attributes.end())
    attributes.emplace_back(name, value);
  else
    known->second = value;
  repaint();
}

WString WWebWidget::attributeValue(const std::string &name) const
{
  if (rare_)
    for (const auto &attribute : rare_->attributes)
      if (attribute.first == name)
        return attribute.second;
  return WString();
}

void WWebWidget::setToolTip(const WString &text, TextFormat format)
{
  if (!rare_ && text.empty())
    return;
  Engine::WidgetExtras &r = rare();
  if (text.literal() && text.empty())
    r.tip.reset();
  else
    r.tip = std::make_unique<Engine::WidgetTip>(Engine::WidgetTip{text, format});
  repaint();
}

WString WWebWidget::toolTip() const
{
  return rare_ && rare_->tip ? rare_->tip->text : WString();
}

// --- Focus, texts, layout sizes
// ------------------------------------------------------------------------------------

void WWebWidget::setFocus(bool focus)
{
  Engine::Session *session = Engine::Session::current();
  if (!session)
    return;
  if (focus)
    session->page().wantFocus(*this);
  else
    session->page().giveUpFocus(*this);
}

bool WWebWidget::hasFocus() const
{
  Engine::Session *session = Engine::Session::current();
  return session && session->page().hasFocus(*this);
}

void WWebWidget::refresh()
{
  repaint();
  // A refresh may rebuild what is below.
  const std::vector<WObject *> below = children();
  for (WObject *child : below)
    if (std::find(children().begin(), children().end(), child) != children().end())
      if (auto *widget = dynamic_cast<WWidget *>(child))
        widget->refresh();
}

void WWebWidget::setLayoutSizeAware(bool aware)
{
  setFlag(SizeAwareFlag, aware);
  repaint();
}

/// True if a layout gives the widget its size, by itself or through tabs, which pass on what they get. Other
/// sizes follow from what the program has set, and telling them would be an echo.
bool WWebWidget::sizeIsGiven() const
{
  const WWebWidget *above = widgetAbove();
  const auto *container = dynamic_cast<const WContainerWidget *>(above);
  if (container && container->layout())
    return true;
  const WWidget *aboveThat = above ? above->parent() : nullptr;
  const bool passesOn = dynamic_cast<const WStackedWidget *>(above) ||
                        dynamic_cast<const WStackedWidget *>(aboveThat) ||
                        dynamic_cast<const WTabWidget *>(aboveThat);
  return passesOn && above->sizeIsGiven();
}

/// The widget's own, and the composites that it stands for, hear of the size.
void WWebWidget::tellLayoutSize(const Engine::RawEvent &event)
{
  int size[2] = {0, 0};
  for (std::size_t i = 0; i < 2; ++i) {
    if (i >= event.args.size())
      return;
    const std::string &text = event.args[i];
    const auto parsed = std::from_chars(text.data(), text.data() + text.size(), size[i]);
    if (parsed.ec != std::errc() || size[i] < 0 || size[i] > 1000000)
      return;
  }
  // The page has changed the height by itself: a widget that keeps another one says it anew.
  if (event.args.size() > 2 && event.args[2] == "1" && element_) {
    element_->assume("*height", std::to_string(size[1]) + "px");
    repaint();
  }
  std::vector<WWidget *> told;
  for (WWidget *w = this; w && w->webWidget() == this; w = w->parent())
    if (w->layoutSizeAware())
      told.push_back(w);
  if (!told.empty())
    told.back()->layoutSizeChanged(size[0], size[1]);
}

// --- Signals
// -------------------------------------------------------------------------------------------------------

EventSignalBase *WWebWidget::findSignal(const char *name) const
{
  if (rare_)
    for (const auto &signal : rare_->signals)
      if (signal->name() == name || std::strcmp(signal->name(), name) == 0)
        return signal.get();
  return nullptr;
}

void WWebWidget::keepSignal(std::unique_ptr<EventSignalBase> signal)
{
  rare().signals.push_back(std::move(signal));
}

void WWebWidget::signalConnectionsChanged()
{
  repaint();
}

void WWebWidget::domEvent(Dom::Element &at, const Engine::RawEvent &event)
{
  if (tellsOfLayout(event.name) ||
      (isEnabled() && Engine::Page::of(at).exposed(this) && !refusesAsHidden(this, event.name)))
    handleDomEvent(at, event);
}

void WWebWidget::domValue(Dom::Element &at, const std::string &value)
{
  if (isEnabled())
    formValue(at, value);
}

void WWebWidget::handleDomEvent(Dom::Element &, const Engine::RawEvent &event)
{
  if (event.name == "size" && (flags_ & SizeAwareFlag))
    tellLayoutSize(event);
  else if (EventSignalBase *signal = findSignal(event.name.c_str()))
    Engine::EventAccess::dispatch(*signal, event);
}

void WWebWidget::formValue(Dom::Element &, const std::string &) {}

} // namespace Wt
