// SPDX-License-Identifier: MIT
#ifndef WT_WLAYOUTITEM_H_
#define WT_WLAYOUTITEM_H_

namespace Wt
{

class WLayout;
class WWidget;

/// One place of a layout: holds a widget or a layout of its own.
class WLayoutItem
{
public:
  WLayoutItem() = default;
  WLayoutItem(const WLayoutItem &) = delete;
  WLayoutItem &operator=(const WLayoutItem &) = delete;
  virtual ~WLayoutItem();

  /// The item of the widget in this item or below it, or null.
  virtual WLayoutItem *findWidgetItem(WWidget *widget) = 0;
  /// The item's layout, or null if it holds a widget.
  virtual WLayout *layout() = 0;
  /// The item's widget, or null if it holds a layout.
  virtual WWidget *widget() = 0;
};

} // namespace Wt

#endif // WT_WLAYOUTITEM_H_
