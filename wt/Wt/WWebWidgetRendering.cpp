// SPDX-License-Identifier: MIT
// How a widget becomes an element of the page; WWebWidget.cpp has what it is.
#include "base/RichText.h"
#include "dom/Document.h"
#include "dom/JsonText.h"
#include "dom/RichContent.h"
#include "layout/ItemStyle.h"
#include "layout/WidgetExtras.h"
#include "session/Page.h"

#include <Wt/WContainerWidget>
#include <Wt/WWebWidget>
#include <algorithm>
#include <cstring>

namespace Wt
{

namespace
{

bool inlineByNature(const char *tag)
{
  static const char *const tags[] = {"span",     "a",   "button", "input", "select",
                                     "textarea", "img", "label",  "form"};
  return std::any_of(std::begin(tags), std::end(tags),
                     [tag](const char *t) { return std::strcmp(t, tag) == 0; });
}

} // namespace

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
  e.setIf((flags_ & SizeAwareFlag) && sizeIsGiven(), "!size", "1");
  renderToolTip(e);
  if (!rare_)
    return;
  if (rare_->box)
    rare_->box->render(e);
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

void WWebWidget::renderToolTip(Dom::Element &e)
{
  const WString *override = toolTipOverride();
  const Engine::WidgetTip *tip = rare_ ? rare_->tip.get() : nullptr;
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
