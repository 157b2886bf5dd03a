// SPDX-License-Identifier: MIT
#include "session/WidgetAccess.h"

#include "session/Page.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>

namespace Wt
{
namespace Engine
{

Dom::Element *WidgetAccess::element(const WWidget *widget)
{
  const WWebWidget *web = widget ? widget->webWidget() : nullptr;
  return web ? web->element_ : nullptr;
}

Dom::Element *WidgetAccess::render(WWidget *widget, Dom::Document &document)
{
  return WWebWidget::elementOf(widget, document);
}

void WidgetAccess::repaint(WWidget *widget)
{
  if (WWebWidget *web = widget->webWidget())
    web->repaint();
}

WWebWidget *WidgetAccess::webWidget(const WWidget *widget)
{
  return widget->webWidget();
}

WWebWidget *WidgetAccess::ownerOf(const Dom::Element *element)
{
  return element->owner() ? element->owner()->ownerWidget() : nullptr;
}

void WidgetAccess::layoutSizeChanged(WWidget *widget, int width, int height)
{
  widget->layoutSizeChanged(width, height);
}

WContainerWidget *WidgetAccess::domRoot(const WApplication *application)
{
  return application->domRoot_;
}

Page *WidgetAccess::page(const WWidget *widget)
{
  Dom::Element *e = element(widget);
  return e ? &Page::of(*e) : nullptr;
}

} // namespace Engine
} // namespace Wt
