// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WContainerWidget>
#include <Wt/WStackedWidget>
#include <Wt/WTabWidget>
#include <algorithm>

namespace Wt
{

namespace
{

/// The frame of strip and pages. What makes the pages fill a frame that has a height is up to its class.
class TabFrame : public WContainerWidget
{
protected:
  void addOwnClasses(std::string &classes) const override
  {
    WContainerWidget::addOwnClasses(classes);
    classes += " Wt-tabwidget";
  }
};

class TabStrip : public WContainerWidget
{
public:
  explicit TabStrip(WContainerWidget *parent) : WContainerWidget(parent) {}

protected:
  const char *domTag() const override { return "ul"; }
  const char *displayStyle() const override { return nullptr; }

  void addOwnClasses(std::string &classes) const override
  {
    WContainerWidget::addOwnClasses(classes);
    classes += " Wt-tabs";
  }

  void render(Dom::Element &e) override
  {
    WContainerWidget::render(e);
    e.set("role", "tablist");
    e.set("!tabs", "1");
  }
};

} // namespace

WTabWidget::WTabWidget(WContainerWidget *parent) : WCompositeWidget(parent), currentChanged_(this)
{
  WContainerWidget *frame = new TabFrame();
  setImplementation(frame);
  strip_ = new TabStrip(frame);
  stack_ = new WStackedWidget(frame);
}

WTabWidget::~WTabWidget()
{
  // The items end with the strip and must not look for another current one then.
  for (WMenuItem *item : items_)
    item->tabs_ = nullptr;
}

WMenuItem *WTabWidget::addTab(WWidget *child, const WString &label, LoadPolicy policy)
{
  WMenuItem *item =
      new WMenuItem(label, child, policy == PreLoading ? WMenuItem::PreLoading : WMenuItem::LazyLoading);
  item->tabs_ = this;
  item->panelTaken_ = true;
  items_.push_back(item);
  strip_->addWidget(item);
  stack_->addWidget(item->panel_);
  if (currentIndex_ == -1)
    showPage(0);
  return item;
}

void WTabWidget::removeTab(WWidget *child)
{
  const int index = indexOf(child);
  if (index < 0)
    return;
  WMenuItem *item = items_[static_cast<std::size_t>(index)];
  const bool wasCurrent = index == currentIndex_;
  item->tabs_ = nullptr;
  item->release();
  WContainerWidget *panel = item->panel_;
  items_.erase(items_.begin() + index);
  delete item;
  delete panel;
  if (index < currentIndex_)
    --currentIndex_;
  if (!wasCurrent) {
    if (currentIndex_ >= 0)
      stack_->setCurrentIndex(currentIndex_);
    return;
  }
  currentIndex_ = -1;
  if (items_.empty())
    return;
  showPage(std::min(index, count() - 1));
  currentChanged_.emit(currentIndex_);
}

WWidget *WTabWidget::widget(int index) const
{
  return valid(index) ? itemAt(index)->contents() : nullptr;
}

int WTabWidget::indexOf(WWidget *widget) const
{
  for (int i = 0; widget && i < count(); ++i)
    if (itemAt(i)->contents() == widget)
      return i;
  return -1;
}

WMenuItem *WTabWidget::itemAt(int index) const
{
  return valid(index) ? items_[static_cast<std::size_t>(index)] : nullptr;
}

int WTabWidget::indexOfItem(const WMenuItem *item) const
{
  const auto found = std::find(items_.begin(), items_.end(), item);
  return found == items_.end() ? -1 : static_cast<int>(found - items_.begin());
}

void WTabWidget::showPage(int index)
{
  if (WMenuItem *former = itemAt(currentIndex_))
    former->setSelected(false);
  currentIndex_ = index;
  itemAt(index)->setSelected(true);
  stack_->setCurrentIndex(index);
}

void WTabWidget::setCurrentIndex(int index)
{
  if (!valid(index) || index == currentIndex_)
    return;
  showPage(index);
  currentChanged_.emit(index);
}

void WTabWidget::setCurrentWidget(WWidget *widget)
{
  setCurrentIndex(indexOf(widget));
}

WWidget *WTabWidget::currentWidget() const
{
  return widget(currentIndex_);
}

WMenuItem *WTabWidget::currentItem() const
{
  return itemAt(currentIndex_);
}

bool WTabWidget::selectable(int index) const
{
  const WMenuItem *item = itemAt(index);
  return item && !item->isHidden() && !item->isDisabled();
}

void WTabWidget::leave(const WMenuItem *item)
{
  const int index = indexOfItem(item);
  if (index != currentIndex_)
    return;
  for (int distance = 1; distance < count(); ++distance) {
    for (const int candidate : {index + distance, index - distance}) {
      if (selectable(candidate)) {
        setCurrentIndex(candidate);
        return;
      }
    }
  }
}

void WTabWidget::setTabText(int index, const WString &label)
{
  if (valid(index))
    itemAt(index)->setText(label);
}

const WString &WTabWidget::tabText(int index) const
{
  return valid(index) ? itemAt(index)->text() : WString::Empty;
}

void WTabWidget::setTabEnabled(int index, bool enabled)
{
  if (valid(index))
    itemAt(index)->setDisabled(!enabled);
}

bool WTabWidget::isTabEnabled(int index) const
{
  return valid(index) && itemAt(index)->isEnabled();
}

void WTabWidget::setTabHidden(int index, bool hidden)
{
  if (valid(index))
    itemAt(index)->setHidden(hidden);
}

bool WTabWidget::isTabHidden(int index) const
{
  return valid(index) && itemAt(index)->isHidden();
}

void WTabWidget::setTabToolTip(int index, const WString &tip)
{
  if (valid(index))
    itemAt(index)->setToolTip(tip);
}

WString WTabWidget::tabToolTip(int index) const
{
  return valid(index) ? itemAt(index)->toolTip() : WString();
}

} // namespace Wt
