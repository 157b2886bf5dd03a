// SPDX-License-Identifier: MIT
#ifndef WT_WLAYOUTITEM_H_
#define WT_WLAYOUTITEM_H_

namespace Wt {

class WLayout;
class WWidget;

/// What a layout holds: a widget or another layout.
class WLayoutItem
{
public:
  virtual ~WLayoutItem();

  /// Null for a layout.
  virtual WWidget *widget() { return nullptr; }
  /// Null for a widget.
  virtual WLayout *layout() { return nullptr; }
};

} // namespace Wt

#endif // WT_WLAYOUTITEM_H_
