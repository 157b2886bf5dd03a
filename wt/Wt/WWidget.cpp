// SPDX-License-Identifier: MIT
#include <Wt/WWidget>

namespace Wt
{

// The parent is told by the classes that have something to show: a widget must exist before it joins its
// parent.
WWidget::WWidget(WContainerWidget *) : WObject(nullptr) {}

WWidget::~WWidget()
{
  // While this is still a widget, so that the parent can tell which one leaves.
  if (WObject *above = WObject::parent())
    above->removeChild(this);
}

void WWidget::toggleStyleClass(const WString &styleClass, bool add, bool force)
{
  if (add)
    addStyleClass(styleClass, force);
  else
    removeStyleClass(styleClass, force);
}

void WWidget::layoutSizeChanged(int, int) {}

} // namespace Wt
