// SPDX-License-Identifier: MIT
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WException>
#include <Wt/WPopupWidget>

namespace Wt
{

WPopupWidget::WPopupWidget(WWidget *implementation, WObject *parent) : hidden_(this), shown_(this)
{
  setImplementation(implementation);
  WCompositeWidget::setHidden(true);
  const WApplication *application = WApplication::instance();
  if (!application)
    throw WException("a widget over the page needs a session");
  Engine::WidgetAccess::domRoot(application)->addWidget(this);
  if (parent)
    parent->destroyed().connect(this, &WPopupWidget::parentGone);
}

WPopupWidget::~WPopupWidget() = default;

void WPopupWidget::parentGone()
{
  delete this;
}

void WPopupWidget::setHidden(bool hidden, const WAnimation &animation)
{
  const bool change = hidden != isHidden();
  WCompositeWidget::setHidden(hidden, animation);
  if (change)
    (hidden ? hidden_ : shown_).emit();
}

} // namespace Wt
