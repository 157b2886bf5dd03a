// SPDX-License-Identifier: MIT
#ifndef WT_WWIDGETITEM_H_
#define WT_WWIDGETITEM_H_

#include <Wt/WLayoutItem>

namespace Wt
{

/// The place of a widget. The widget belongs to the container that the layout manages.
class WWidgetItem : public WLayoutItem
{
public:
  explicit WWidgetItem(WWidget *widget) : widget_(widget) {}

  WLayoutItem *findWidgetItem(WWidget *widget) override { return widget == widget_ ? this : nullptr; }
  WLayout *layout() override { return nullptr; }
  WWidget *widget() override { return widget_; }

private:
  WWidget *widget_;
};

} // namespace Wt

#endif // WT_WWIDGETITEM_H_
