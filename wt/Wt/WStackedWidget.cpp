// SPDX-License-Identifier: MIT
#include <Wt/WStackedWidget>
#include <algorithm>

namespace Wt
{

namespace
{

/// The same movement, from the other side.
WAnimation reversed(const WAnimation &animation)
{
  static const std::pair<WAnimation::AnimationEffect, WAnimation::AnimationEffect> opposites[] = {
      {WAnimation::SlideInFromLeft, WAnimation::SlideInFromRight},
      {WAnimation::SlideInFromTop, WAnimation::SlideInFromBottom}};
  const int slide = animation.effects().value() & 0xff;
  const int others = animation.effects().value() & ~0xff;
  for (const auto &pair : opposites) {
    if (slide == pair.first)
      return WAnimation(static_cast<WAnimation::AnimationEffect>(pair.second | others),
                        animation.timingFunction(), animation.duration());
    if (slide == pair.second)
      return WAnimation(static_cast<WAnimation::AnimationEffect>(pair.first | others),
                        animation.timingFunction(), animation.duration());
  }
  return animation;
}

} // namespace

WStackedWidget::WStackedWidget(WContainerWidget *parent) : WContainerWidget(parent)
{
  addStyleClass("Wt-stack");
}

WStackedWidget::~WStackedWidget() = default;

void WStackedWidget::setCurrentIndex(int index)
{
  setCurrentIndex(index, animation_, autoReverse_);
}

void WStackedWidget::setCurrentIndex(int index, const WAnimation &animation, bool autoReverse)
{
  const bool back = autoReverse && index < currentIndex_;
  currentIndex_ = index;
  showCurrent(back ? reversed(animation) : animation);
}

void WStackedWidget::setCurrentWidget(WWidget *widget)
{
  const int index = indexOf(widget);
  if (index >= 0)
    setCurrentIndex(index);
}

WWidget *WStackedWidget::currentWidget() const
{
  return currentIndex_ >= 0 && currentIndex_ < count() ? widget(currentIndex_) : nullptr;
}

void WStackedWidget::setTransitionAnimation(const WAnimation &animation, bool autoReverse)
{
  animation_ = animation;
  autoReverse_ = autoReverse;
}

void WStackedWidget::showCurrent(const WAnimation &animation)
{
  for (int i = 0; i < count(); ++i)
    if (widget(i)->isHidden() != (i != currentIndex_))
      widget(i)->setHidden(i != currentIndex_, animation);
}

void WStackedWidget::childAdded(int index, WWidget *child)
{
  WContainerWidget::childAdded(index, child);
  if (currentIndex_ == -1)
    currentIndex_ = 0;
  showCurrent(WAnimation());
}

void WStackedWidget::childRemoved(int index, WWidget *child)
{
  WContainerWidget::childRemoved(index, child);
  currentIndex_ = std::min(currentIndex_, count() - 1);
  showCurrent(WAnimation());
}

} // namespace Wt
