// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WContainerWidget>
#include <Wt/WLayout>
#include <algorithm>

namespace Wt
{

namespace
{

struct PaddingKey {
  Side side;
  const char *key;
};
const PaddingKey kPaddingKeys[] = {
    {Top, "*padding-top"}, {Right, "*padding-right"}, {Bottom, "*padding-bottom"}, {Left, "*padding-left"}};

const char *const kOverflowTexts[] = {"visible", "auto", "hidden", "scroll"};

} // namespace

struct WContainerWidget::Frame {
  WLength padding[4] = {0, 0, 0, 0}; ///< in the order of paddingKeys
  bool paddingSet[4] = {};
  Overflow overflow[2] = {OverflowVisible, OverflowVisible}; ///< horizontal, vertical
  bool overflowSet[2] = {};
};

WContainerWidget::WContainerWidget(WContainerWidget *parent) : WInteractWidget(parent) {}

WContainerWidget::~WContainerWidget()
{
  dropElement();
  WContainerWidget::clear();
}

WContainerWidget::Frame &WContainerWidget::frame()
{
  if (!frame_)
    frame_ = std::make_unique<Frame>();
  return *frame_;
}

// --- Children
// ------------------------------------------------------------------------------------------------------

void WContainerWidget::addWidget(WWidget *widget)
{
  if (widget && widget->parent() != this)
    WContainerWidget::insertWidget(static_cast<int>(widgets_.size()), widget);
}

void WContainerWidget::insertBefore(WWidget *widget, WWidget *before)
{
  const int index = indexOf(before);
  insertWidget(index < 0 ? count() : index, widget);
}

void WContainerWidget::insertWidget(int index, WWidget *widget)
{
  if (!widget || widget == this || widget->parent() == this)
    return;
  const bool wasEnabled = widget->isEnabled();
  addChild(widget);
  index = std::clamp(index, 0, static_cast<int>(widgets_.size()));
  widgets_.insert(widgets_.begin() + index, widget);
  const bool enabled = widget->isEnabled();
  if (enabled != wasEnabled)
    widget->propagateSetEnabled(enabled);
  childAdded(index, widget);
  repaint();
}

void WContainerWidget::removeWidget(WWidget *widget)
{
  WWidget *above = widget ? widget->parent() : nullptr;
  if (!above)
    return;
  const bool wasEnabled = widget->isEnabled();
  above->removeChild(widget);
  const bool enabled = widget->isEnabled();
  if (enabled != wasEnabled)
    widget->propagateSetEnabled(enabled);
}

void WContainerWidget::removeChild(WObject *child)
{
  const auto found = std::find_if(widgets_.begin(), widgets_.end(), [child](const WWidget *w) {
    return static_cast<const WObject *>(w) == child;
  });
  WWidget *widget = found == widgets_.end() ? nullptr : *found;
  const int index = static_cast<int>(found - widgets_.begin());
  if (widget)
    widgets_.erase(found);
  WInteractWidget::removeChild(child);
  if (!widget)
    return;
  if (layout_)
    layout_->widgetGone(widget);
  childRemoved(index, widget);
  repaint();
}

void WContainerWidget::clear()
{
  delete layout_;
  layout_ = nullptr;
  while (!widgets_.empty())
    delete widgets_.front();
  repaint();
}

int WContainerWidget::count() const
{
  return static_cast<int>(widgets_.size());
}

WWidget *WContainerWidget::widget(int index) const
{
  return index >= 0 && index < count() ? widgets_[static_cast<std::size_t>(index)] : nullptr;
}

int WContainerWidget::indexOf(WWidget *widget) const
{
  const auto found = std::find(widgets_.begin(), widgets_.end(), widget);
  return found == widgets_.end() ? -1 : static_cast<int>(found - widgets_.begin());
}

void WContainerWidget::childAdded(int, WWidget *) {}

void WContainerWidget::childRemoved(int, WWidget *) {}

// --- Layout, alignment, frame
// --------------------------------------------------------------------------------------

void WContainerWidget::setLayout(WLayout *layout)
{
  if (layout == layout_)
    return;
  delete layout_;
  layout_ = layout;
  if (layout_)
    layout_->setContainer(this);
  repaint();
}

void WContainerWidget::setLayout(WLayout *layout, WFlags<AlignmentFlag>)
{
  setLayout(layout);
}

void WContainerWidget::layoutGone()
{
  layout_ = nullptr;
  repaint();
}

void WContainerWidget::setContentAlignment(WFlags<AlignmentFlag> alignment)
{
  if (!(alignment.value() & AlignVerticalMask))
    alignment |= AlignTop;
  if (alignment.value() == alignment_.value())
    return;
  alignment_ = alignment;
  repaint();
}

void WContainerWidget::setPadding(const WLength &padding, WFlags<Side> sides)
{
  Frame &f = frame();
  for (int i = 0; i < 4; ++i) {
    if (sides.value() & kPaddingKeys[i].side) {
      f.padding[i] = padding;
      f.paddingSet[i] = true;
    }
  }
  repaint();
}

WLength WContainerWidget::padding(Side side) const
{
  for (int i = 0; i < 4; ++i)
    if (kPaddingKeys[i].side == side && frame_)
      return frame_->padding[i];
  return WLength(0);
}

void WContainerWidget::setOverflow(Overflow overflow, WFlags<Orientation> orientation)
{
  Frame &f = frame();
  for (int i = 0; i < 2; ++i) {
    if (orientation.value() & (i == 0 ? Horizontal : Vertical)) {
      f.overflow[i] = overflow;
      f.overflowSet[i] = true;
    }
  }
  repaint();
}

// --- Rendering
// -----------------------------------------------------------------------------------------------------

const char *WContainerWidget::domTag() const
{
  return WInteractWidget::domTag();
}

const char *WContainerWidget::displayStyle() const
{
  return layout_ ? layout_->displayStyle() : WInteractWidget::displayStyle();
}

/// Block children are aligned by the style sheet, which knows the container by its class.
void WContainerWidget::addOwnClasses(std::string &classes) const
{
  const int horizontal = alignment_.value() & AlignHorizontalMask;
  if (horizontal == AlignCenter)
    classes += classes.empty() ? "Wt-align-center" : " Wt-align-center";
  else if (horizontal == AlignRight)
    classes += classes.empty() ? "Wt-align-right" : " Wt-align-right";
}

void WContainerWidget::render(Dom::Element &e)
{
  WInteractWidget::render(e);
  const int horizontal = alignment_.value() & AlignHorizontalMask;
  const bool aligned = horizontal == AlignCenter || horizontal == AlignRight || horizontal == AlignJustify;
  e.setIf(aligned, "*text-align",
          horizontal == AlignCenter  ? "center"
          : horizontal == AlignRight ? "right"
                                     : "justify");
  if (frame_)
    renderFrame(e);
}

void WContainerWidget::renderFrame(Dom::Element &e)
{
  const Frame &f = *frame_;
  for (int i = 0; i < 4; ++i)
    if (f.paddingSet[i])
      e.set(kPaddingKeys[i].key, f.padding[i].cssText());
  if (f.overflowSet[0])
    e.set("*overflow-x", kOverflowTexts[f.overflow[0]]);
  if (f.overflowSet[1])
    e.set("*overflow-y", kOverflowTexts[f.overflow[1]]);
}

void WContainerWidget::renderContents(Dom::Element &e)
{
  if (layout_)
    layout_->renderInto(e);
  else
    WInteractWidget::renderContents(e);
}

std::vector<WWidget *> WContainerWidget::renderedChildren()
{
  return widgets_;
}

} // namespace Wt
