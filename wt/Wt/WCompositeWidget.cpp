// SPDX-License-Identifier: MIT
#include <Wt/WCompositeWidget>
#include <Wt/WContainerWidget>

namespace Wt
{

WCompositeWidget::WCompositeWidget(WContainerWidget *parent) : WWidget(parent)
{
  if (parent)
    parent->addWidget(this);
}

WCompositeWidget::WCompositeWidget(WWidget *implementation, WContainerWidget *parent) : WWidget(parent)
{
  setImplementation(implementation);
  if (parent)
    parent->addWidget(this);
}

WCompositeWidget::~WCompositeWidget()
{
  delete implementation_;
}

void WCompositeWidget::setImplementation(WWidget *implementation)
{
  if (implementation == implementation_)
    return;
  delete implementation_;
  implementation_ = implementation;
  if (!implementation)
    return;
  addChild(implementation);
  if (hiddenEarly_)
    implementation->hide();
  if (sizeAware_)
    implementation->setLayoutSizeAware(true);
  if (parent() && !parent()->isEnabled())
    implementation->propagateSetEnabled(false);
  for (WWidget *above = parent(); above; above = above->parent())
    if (WWebWidget *web = above->webWidget(); web && web != implementation->webWidget()) {
      web->repaint();
      break;
    }
}

void WCompositeWidget::removeChild(WObject *child)
{
  if (child == implementation_)
    implementation_ = nullptr;
  WWidget::removeChild(child);
}

WWebWidget *WCompositeWidget::webWidget() const
{
  return implementation_ ? implementation_->webWidget() : nullptr;
}

void WCompositeWidget::resize(const WLength &width, const WLength &height)
{
  implementation_->resize(width, height);
}

WLength WCompositeWidget::width() const
{
  return implementation_->width();
}

WLength WCompositeWidget::height() const
{
  return implementation_->height();
}

void WCompositeWidget::setMinimumSize(const WLength &width, const WLength &height)
{
  implementation_->setMinimumSize(width, height);
}

WLength WCompositeWidget::minimumWidth() const
{
  return implementation_->minimumWidth();
}

WLength WCompositeWidget::minimumHeight() const
{
  return implementation_->minimumHeight();
}

void WCompositeWidget::setMaximumSize(const WLength &width, const WLength &height)
{
  implementation_->setMaximumSize(width, height);
}

WLength WCompositeWidget::maximumWidth() const
{
  return implementation_->maximumWidth();
}

WLength WCompositeWidget::maximumHeight() const
{
  return implementation_->maximumHeight();
}

void WCompositeWidget::setMargin(const WLength &margin, WFlags<Side> sides)
{
  implementation_->setMargin(margin, sides);
}

WLength WCompositeWidget::margin(Side side) const
{
  return implementation_->margin(side);
}

void WCompositeWidget::setHidden(bool hidden, const WAnimation &animation)
{
  if (implementation_)
    implementation_->setHidden(hidden, animation);
  else
    hiddenEarly_ = hidden;
}

bool WCompositeWidget::isHidden() const
{
  return implementation_ ? implementation_->isHidden() : hiddenEarly_;
}

bool WCompositeWidget::isVisible() const
{
  return implementation_ && implementation_->isVisible();
}

void WCompositeWidget::setDisabled(bool disabled)
{
  implementation_->setDisabled(disabled);
}

bool WCompositeWidget::isDisabled() const
{
  return implementation_ && implementation_->isDisabled();
}

bool WCompositeWidget::isEnabled() const
{
  return !implementation_ || implementation_->isEnabled();
}

void WCompositeWidget::propagateSetEnabled(bool enabled)
{
  if (implementation_)
    implementation_->propagateSetEnabled(enabled);
}

void WCompositeWidget::setInline(bool isInline)
{
  implementation_->setInline(isInline);
}

bool WCompositeWidget::isInline() const
{
  return implementation_ && implementation_->isInline();
}

void WCompositeWidget::setStyleClass(const WString &styleClass)
{
  implementation_->setStyleClass(styleClass);
}

WString WCompositeWidget::styleClass() const
{
  return implementation_->styleClass();
}

void WCompositeWidget::addStyleClass(const WString &styleClass, bool force)
{
  implementation_->addStyleClass(styleClass, force);
}

void WCompositeWidget::removeStyleClass(const WString &styleClass, bool force)
{
  implementation_->removeStyleClass(styleClass, force);
}

bool WCompositeWidget::hasStyleClass(const WString &styleClass) const
{
  return implementation_->hasStyleClass(styleClass);
}

void WCompositeWidget::setVerticalAlignment(AlignmentFlag alignment, const WLength &length)
{
  implementation_->setVerticalAlignment(alignment, length);
}

AlignmentFlag WCompositeWidget::verticalAlignment() const
{
  return implementation_->verticalAlignment();
}

void WCompositeWidget::setToolTip(const WString &text, TextFormat format)
{
  implementation_->setToolTip(text, format);
}

WString WCompositeWidget::toolTip() const
{
  return implementation_->toolTip();
}

void WCompositeWidget::setAttributeValue(const std::string &name, const WString &value)
{
  implementation_->setAttributeValue(name, value);
}

WString WCompositeWidget::attributeValue(const std::string &name) const
{
  return implementation_->attributeValue(name);
}

void WCompositeWidget::setFocus(bool focus)
{
  implementation_->setFocus(focus);
}

bool WCompositeWidget::hasFocus() const
{
  return implementation_->hasFocus();
}

void WCompositeWidget::refresh()
{
  if (implementation_)
    implementation_->refresh();
}

void WCompositeWidget::setLayoutSizeAware(bool aware)
{
  sizeAware_ = aware;
  if (implementation_)
    implementation_->setLayoutSizeAware(aware);
}

bool WCompositeWidget::layoutSizeAware() const
{
  return sizeAware_;
}

} // namespace Wt
