// SPDX-License-Identifier: MIT
#include <Wt/WLayout>

#include "session/WidgetAccess.h"

#include <Wt/WContainerWidget>

namespace Wt {

WLayoutItem::~WLayoutItem() = default;

WLayout::WLayout() = default;

WLayout::~WLayout()
{
  if (container_)
    container_->layoutGone();
}

void WLayout::setContainer(WContainerWidget *container)
{
  container_ = container;
}

void WLayout::repaint()
{
  if (container_)
    Engine::WidgetAccess::repaint(container_);
}

} // namespace Wt
