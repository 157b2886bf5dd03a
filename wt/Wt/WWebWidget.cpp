// SPDX-License-Identifier: MIT
#include "base/EventAccess.h"
#include "base/Log.h"
#include "base/RawEvent.h"
#include "base/RichText.h"
#include "dom/Document.h"
#include "dom/JsonText.h"
#include "dom/RichContent.h"
#include "layout/ItemStyle.h"
#include "session/Page.h"
#include "session/Session.h"
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WWebWidget>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>

namespace Wt
{

namespace
{

const int kVerticalFlags = AlignBaseline | AlignSub | AlignSuper | AlignTop | AlignTextTop | AlignMiddle |
                           AlignBottom | AlignTextBottom;

struct SideKey {
  Side side;
  const char *margin;
};
const SideKey kSideKeys[] = {
    {Top, "*margin-top"}, {Right, "*margin-right"}, {Bottom, "*margin-bottom"}, {Left, "*margin-left"}};

WLength positive(const WLength &length)
{
  return length.isAuto() || length.value() >= 0 ? length : WLength(-length.value(), length.unit());
}

void setLength(Dom::Element &e, const char *key, const WLength &length, bool wanted)
{
  if (wanted)
    e.set(key, length.cssText());
  else
    e.unset(key);
}

/// Calls `word(text)` for each of the words between blanks.
template <typename F> void forEachWord(std::string_view text, const F &word)
{
  const char *const blanks = " \t\n\r\f";
  for (std::size_t from = text.find_first_not_of(blanks); from != text.npos;) {
    const std::size_t to = std::min(text.find_first_of(blanks, from), text.size());
    word(text.substr(from, to - from));
    from = text.find_first_not_of(blanks, to);
  }
}

bool containsWord(std::string_view words, std::string_view wanted)
{
  bool found = false;
  forEachWord(words, [&](std::string_view word) { found = found || word == wanted; });
  return found;
}

bool inlineByNature(const char *tag)
{
  static const char *const tags[] = {"span",     "a",   "button", "input", "select",
                                     "textarea", "img", "label",  "form"};
  return std::any_of(std::begin(tags), std::end(tags),
                     [tag](const char *t) { return std::strcmp(t, tag) == 0; });
}

const char *verticalAlignText(AlignmentFlag alignment)
{
  switch (alignment) {
  case AlignSub:
    return "sub";
  case AlignSuper:
    return "super";
  case AlignTop:
    return "top";
  case AlignTextTop:
    return "text-top";
  case AlignMiddle:
    return "middle";
  case AlignBottom:
    return "bottom";
  case AlignTextBottom:
    return "text-bottom";
  default:
    return "baseline";
  }
}

/// Events that tell what the browser shows, and not what a user wants: they count for a disabled widget too.
bool tellsOfLayout(const std::string &event)
{
  return event == "size" || event == "table:scroll";
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

struct WWebWidget::Box {
  WLength width;
  WLength height;
  WLength minimumWidth = 0;
  WLength minimumHeight = 0;
  WLength maximumWidth;
  WLength maximumHeight;
  WLength margins[4] = {0, 0, 0, 0}; ///< in the order of sideKeys
  WLength verticalLength;
  AlignmentFlag verticalAlignment = AlignBaseline;
  bool marginsSet[4] = {};
  bool verticalSet = false;
};

struct WWebWidget::Tip {
  WString text;
  TextFormat format;
};

/// What most widgets do not have.
struct WWebWidget::Rare {
  std::string styleClass;
  std::unique_ptr<Box> box;
  std::unique_ptr<Tip> tip;
  std::unique_ptr<WAnimation> animation; ///< of the next change between hidden and shown
  std::vector<std::pair<std::string, WString>> attributes;
  std::vector<std::unique_ptr<EventSignalBase>> signals;
};

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

WWebWidget::Rare &WWebWidget::rare()
{
  if (!rare_)
    rare_ = std::make_unique<Rare>();
  return *rare_;
}

WWebWidget::Box &WWebWidget::box()
{
  Rare &r = rare();
  if (!r.box)
    r.box = std::make_unique<Box>();
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
  const WLength w = positive(newWidth);
  const WLength h = positive(newHeight);
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
  box().minimumWidth = positive(width);
  box().minimumHeight = positive(height);
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
  box().maximumWidth = positive(width);
  box().maximumHeight = positive(height);
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
  Box &b = box();
  for (int i = 0; i < 4; ++i) {
    if (sides.value() & kSideKeys[i].side) {
      b.margins[i] = margin;
      b.marginsSet[i] = true;
    }
  }
  repaint();
}

WLength WWebWidget::margin(Side side) const
{
  for (int i = 0; i < 4; ++i)
    if (kSideKeys[i].side == side && rare_ && rare_->box)
      return rare_->box->margins[i];
  return WLength(0);
}

void WWebWidget::setVerticalAlignment(AlignmentFlag alignment, const WLength &length)
{
  if (alignment & ~kVerticalFlags) {
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
  const std::string added = styleClass.toUTF8();
  std::string &classes = rare().styleClass;
  const std::size_t before = classes.size();
  forEachWord(added, [&](std::string_view word) {
    if (containsWord(classes, word))
      return;
    if (!classes.empty())
      classes += ' ';
    classes += word;
  });
  if (classes.size() != before)
    repaint();
}

void WWebWidget::removeStyleClass(const WString &styleClass, bool)
{
  if (!rare_)
    return;
  const std::string removed = styleClass.toUTF8();
  std::string left;
  forEachWord(rare_->styleClass, [&](std::string_view word) {
    if (containsWord(removed, word))
      return;
    if (!left.empty())
      left += ' ';
    left += word;
  });
  if (left == rare_->styleClass)
    return;
  rare_->styleClass = std::move(left);
  repaint();
}

bool WWebWidget::hasStyleClass(const WString &styleClass) const
{
  return rare_ && containsWord(rare_->styleClass, styleClass.toUTF8());
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
  Rare &r = rare();
  if (text.literal() && text.empty())
    r.tip.reset();
  else
    r.tip = std::make_unique<Tip>(Tip{text, format});
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
  if (tellsOfLayout(event.name) || (isEnabled() && Engine::Page::of(at).exposed(this)))
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

// --- Rendering
// -----------------------------------------------------------------------------------------------------

const char *WWebWidget::domTag() const
{
  return isInline() ? "span" : "div";
}

const char *WWebWidget::displayStyle() const
{
  const char *tag = domTag();
  const bool natural = inlineByNature(tag);
  if (natural != isInline())
    return natural ? "block" : "inline-block";
  // A size has no effect on what flows in a line, unless it is a block there.
  const bool sized = rare_ && rare_->box && (!rare_->box->width.isAuto() || !rare_->box->height.isAuto());
  if (sized && (std::strcmp(tag, "span") == 0 || std::strcmp(tag, "a") == 0))
    return "inline-block";
  return nullptr;
}

void WWebWidget::addOwnClasses(std::string &) const {}

const WString *WWebWidget::toolTipOverride() const
{
  return nullptr;
}

const char *WWebWidget::listenerFlags(const char *) const
{
  return "";
}

std::vector<WWidget *> WWebWidget::renderedChildren()
{
  return std::vector<WWidget *>();
}

void WWebWidget::create(Dom::Document &document)
{
  element_ = document.create(domTag(), this);
  renderAll(*element_);
}

void WWebWidget::renderAll(Dom::Element &e)
{
  render(e);
  renderContents(e);
  finishRender(e);
}

/// Renders a marked widget, whose element may have to be of another kind now.
void WWebWidget::renderAgain()
{
  if (std::strcmp(domTag(), element_->tag()) == 0) {
    renderAll(*element_);
    return;
  }
  dropElement();
  if (WWebWidget *above = widgetAbove())
    above->repaint();
}

void WWebWidget::render(Dom::Element &e)
{
  std::string classes = rare_ ? rare_->styleClass : std::string();
  addOwnClasses(classes);
  const std::string_view trimmed = std::string_view(classes).substr(!classes.empty() && classes[0] == ' ');
  e.setIf(!trimmed.empty(), "class", trimmed);
  if (!objectName().empty())
    e.set("id", id());
  renderHidden(e);
  const char *display = displayStyle();
  e.setIf(display, "*display", display ? display : "");
  e.setIf(flags_ & SizeAwareFlag, "!size", "1");
  renderToolTip(e);
  if (!rare_)
    return;
  if (rare_->box) {
    renderBox(e);
    renderMargins(e);
  }
  for (const auto &attribute : rare_->attributes)
    e.set(e.document().intern(attribute.first), attribute.second.toUTF8());
  renderListeners(e);
}

void WWebWidget::renderHidden(Dom::Element &e)
{
  const bool was = e.get("hidden");
  const bool is = isHidden();
  std::unique_ptr<WAnimation> animation = rare_ ? std::move(rare_->animation) : nullptr;
  if (!animation || (was == is && e.attached())) {
    e.setIf(is, "hidden", "");
    return;
  }
  std::string arguments = is ? "1" : "0";
  for (const int number :
       {animation->effects().value(), static_cast<int>(animation->timingFunction()), animation->duration()}) {
    arguments += ',';
    Dom::appendJsonNumber(arguments, number);
  }
  // The browser is to know how to hide it before it hides it, and must have it before it can animate it in.
  if (is && e.attached())
    e.call("anim", arguments);
  e.setIf(is, "hidden", "");
  if (!is)
    e.call("anim", arguments);
}

void WWebWidget::renderBox(Dom::Element &e)
{
  const Box &b = *rare_->box;
  setLength(e, "*width", b.width, !b.width.isAuto());
  setLength(e, "*height", b.height, !b.height.isAuto());
  setLength(e, "*min-width", b.minimumWidth, !b.minimumWidth.isAuto() && b.minimumWidth.value() != 0);
  setLength(e, "*min-height", b.minimumHeight, !b.minimumHeight.isAuto() && b.minimumHeight.value() != 0);
  setLength(e, "*max-width", b.maximumWidth, !b.maximumWidth.isAuto());
  setLength(e, "*max-height", b.maximumHeight, !b.maximumHeight.isAuto());
  if (b.verticalSet)
    e.set("*vertical-align", b.verticalAlignment == AlignBaseline && !b.verticalLength.isAuto()
                                 ? b.verticalLength.cssText()
                                 : verticalAlignText(b.verticalAlignment));
}

void WWebWidget::renderMargins(Dom::Element &e)
{
  const Box &b = *rare_->box;
  for (int i = 0; i < 4; ++i)
    if (b.marginsSet[i])
      e.set(kSideKeys[i].margin, b.margins[i].cssText());
}

void WWebWidget::renderToolTip(Dom::Element &e)
{
  const WString *override = toolTipOverride();
  const Tip *tip = rare_ ? rare_->tip.get() : nullptr;
  if (!override && !tip && !e.get("title") && !e.get("!tip"))
    return;
  const std::string text = override ? override->toUTF8() : tip ? tip->text.toUTF8() : std::string();
  std::string rich;
  if (!override && tip && tip->format != PlainText && !text.empty()) {
    const bool own = !tip->text.literal() && tip->text.args().empty();
    const auto parsed =
        Engine::RichText::parse(text, own ? Engine::RichText::Trust::Program : Engine::RichText::Trust::None);
    if (parsed)
      rich = Dom::richContent(*parsed);
  }
  e.setIf(!rich.empty(), "!tip", rich);
  e.setIf(rich.empty() && !text.empty(), "title", text);
}

void WWebWidget::renderListeners(Dom::Element &e)
{
  for (const auto &signal : rare_->signals) {
    const char *key = e.document().intern(std::string("@") + signal->name());
    e.setIf(signal->isConnected(), key, listenerFlags(signal->name()));
  }
}

void WWebWidget::renderContents(Dom::Element &e)
{
  const std::vector<WWidget *> children = renderedChildren();
  if (!children.empty() || !e.children().empty())
    place(e, children);
}

void WWebWidget::finishRender(Dom::Element &) {}

void WWebWidget::place(Dom::Element &into, const std::vector<WWidget *> &children)
{
  std::vector<Dom::Element *> elements;
  elements.reserve(children.size());
  for (WWidget *child : children)
    if (Dom::Element *element = elementOf(child, into.document())) {
      if (element->parent() != &into)
        Engine::ItemStyle::leave(*element);
      elements.push_back(element);
    }
  into.setChildren(elements);
}

Dom::Element *WWebWidget::elementOf(WWidget *child, Dom::Document &document)
{
  WWebWidget *web = child->webWidget();
  if (!web)
    return nullptr;
  if (!web->element_ && !web->isHidden())
    web->create(document);
  return web->element_;
}

void WWebWidget::dropElement()
{
  if (element_)
    element_->document().destroy(element_);
}

void WWebWidget::domGone(Dom::Element &gone) noexcept
{
  if (&gone != element_)
    return;
  Engine::Page::of(gone).unmark(*this);
  element_ = nullptr;
}

} // namespace Wt
