// SPDX-License-Identifier: MIT
#include "dom/Document.h"
#include "layout/ItemStyle.h"
#include "layout/LayoutElements.h"
#include "session/WidgetAccess.h"

#include <Wt/WContainerWidget>
#include <Wt/WLayout>
#include <Wt/WWidgetItem>
#include <algorithm>
#include <string>

namespace Wt
{

WLayoutItem::~WLayoutItem() = default;

WLayout::WLayout() : elements_(new Engine::LayoutElements()) {}

WLayout::~WLayout()
{
  if (!container_ || container_->layout() != this)
    return;
  if (Dom::Element *element = Engine::WidgetAccess::element(container_))
    Engine::ItemStyle::unmanage(*element);
  container_->layoutGone();
}

void WLayout::addWidget(WWidget *widget)
{
  addItem(new WWidgetItem(widget));
}

void WLayout::removeWidget(WWidget *widget)
{
  if (!findWidgetItem(widget))
    return;
  if (container_)
    container_->removeWidget(widget);
  else
    widgetGone(widget);
}

int WLayout::indexOf(WLayoutItem *item) const
{
  for (int i = 0, n = count(); i < n; ++i)
    if (itemAt(i) == item)
      return i;
  return -1;
}

WLayoutItem *WLayout::findWidgetItem(WWidget *widget)
{
  for (int i = 0, n = count(); i < n; ++i)
    if (WLayoutItem *found = itemAt(i)->findWidgetItem(widget))
      return found;
  return nullptr;
}

void WLayout::setContentsMargins(int left, int top, int right, int bottom)
{
  const int margins[] = {left, top, right, bottom};
  std::copy(margins, margins + 4, margins_);
  repaint();
}

void WLayout::getContentsMargins(int *left, int *top, int *right, int *bottom) const
{
  int *const to[] = {left, top, right, bottom};
  for (int i = 0; i < 4; ++i)
    if (to[i])
      *to[i] = margins_[i];
}

WWidget *WLayout::parentWidget() const
{
  return container_;
}

void WLayout::setLayoutInParent(WWidget *parent)
{
  if (WContainerWidget *container = dynamic_cast<WContainerWidget *>(parent))
    container->setLayout(this);
}

void WLayout::setContainer(WContainerWidget *container)
{
  container_ = container;
  if (!container) {
    for (int i = 0, n = count(); i < n; ++i) {
      if (WLayout *nested = itemAt(i)->layout())
        nested->setContainer(nullptr);
      watch(itemAt(i));
    }
    return;
  }
  for (int i = 0, n = count(); i < n; ++i)
    adopt(itemAt(i));
  repaint();
}

void WLayout::adopt(WLayoutItem *item)
{
  if (WLayout *nested = item->layout())
    nested->setContainer(container_);
  else if (WWidget *widget = item->widget())
    container_->addWidget(widget);
}

void WLayout::itemAdded(WLayoutItem *item)
{
  if (WLayout *nested = item->layout())
    nested->parentLayout_ = this;
  if (container_)
    adopt(item);
  else
    watch(item);
  repaint();
}

/// Without a container nobody tells that a widget is gone.
void WLayout::watch(WLayoutItem *item)
{
  if (WWidget *widget = item->widget())
    widget->destroyed().connect(this, &WLayout::widgetDestroyed);
}

void WLayout::widgetDestroyed(WObject *object)
{
  // Its widget part is gone: only the address counts.
  for (int i = 0, n = container_ ? 0 : count(); i < n; ++i) {
    WLayoutItem *item = itemAt(i);
    if (item->widget() == object) {
      removeItem(item);
      delete item;
      return;
    }
  }
}

bool WLayout::hides(WLayoutItem *item)
{
  if (const WWidget *widget = item->widget())
    return widget->isHidden();
  WLayout *nested = item->layout();
  for (int i = 0, n = nested ? nested->count() : 0; i < n; ++i)
    if (!hides(nested->itemAt(i)))
      return false;
  return nested && nested->count() > 0;
}

void WLayout::itemRemoved(WLayoutItem *item)
{
  if (WLayout *nested = item->layout()) {
    nested->parentLayout_ = nullptr;
    nested->setContainer(nullptr);
  }
  elements_->forget(item);
  repaint();
}

void WLayout::aboutToAdd(WLayoutItem *item)
{
  WWidget *widget = item->widget();
  const auto *container = widget ? dynamic_cast<WContainerWidget *>(widget->parent()) : nullptr;
  if (container && container->layout())
    container->layout()->widgetGone(widget);
}

void WLayout::releaseItems()
{
  for (int i = 0, n = count(); container_ && i < n; ++i)
    if (WWidget *widget = itemAt(i)->widget())
      if (Dom::Element *element = Engine::WidgetAccess::element(widget))
        Engine::ItemStyle::leave(*element);
}

void WLayout::widgetGone(WWidget *widget)
{
  for (int i = 0, n = count(); i < n; ++i) {
    WLayoutItem *item = itemAt(i);
    if (item->widget() == widget) {
      removeItem(item);
      delete item;
      return;
    }
    if (WLayout *nested = item->layout())
      nested->widgetGone(widget);
  }
}

void WLayout::repaint()
{
  if (container_)
    Engine::WidgetAccess::repaint(container_);
}

void WLayout::renderInto(Dom::Element &e)
{
  std::string padding;
  for (const int side : {1, 2, 3, 0}) // top, right, bottom, left
    padding += (padding.empty() ? "" : " ") + std::to_string(margins_[side]) + "px";
  const bool none = !margins_[0] && !margins_[1] && !margins_[2] && !margins_[3];
  e.setIf(!none, "*padding", padding);
  renderItems(e);
}

Dom::Element *WLayout::itemElement(WLayoutItem *item, Dom::Document &document)
{
  if (WWidget *widget = item->widget())
    return Engine::WidgetAccess::render(widget, document);
  Dom::Element &box = elements_->get(document, item, Engine::LayoutElements::Box);
  if (WLayout *nested = item->layout()) {
    box.set("*display", nested->displayStyle());
    nested->renderItems(box);
  }
  return &box;
}

bool WLayout::sizeControlled(WLayoutItem *item)
{
  return item->widget() && item->widget()->layoutSizeAware();
}

} // namespace Wt
