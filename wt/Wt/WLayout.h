// SPDX-License-Identifier: MIT
#ifndef WT_WLAYOUT_H_
#define WT_WLAYOUT_H_

#include <Wt/WLayoutItem>
#include <Wt/WObject>

namespace Wt {

class WContainerWidget;

namespace Dom {
class Element;
}

/// Places widgets in a container. The widgets are the container's children; the container owns the layout.
class WLayout : public WObject, public WLayoutItem
{
public:
  WLayout();
  ~WLayout() override;

  WLayout *layout() override { return this; }
  /// The container that this is the layout of; null for a nested layout.
  WContainerWidget *container() const { return container_; }

protected:
  friend class WContainerWidget;

  /// The container's *display, a literal such as "flex".
  virtual const char *displayStyle() const = 0;
  /// Fills the container's element, called within its rendering. Elements of widgets are had from
  /// Engine::WidgetAccess::render, which gives null for one that is hidden and never was shown.
  virtual void renderInto(Dom::Element &element) = 0;
  /// This has become the layout of `container`, whose children its widgets must be; null: it no longer is.
  virtual void setContainer(WContainerWidget *container);
  /// The widget has left the container.
  virtual void widgetGone(WWidget *widget) = 0;
  /// Marks the container for rendering.
  void repaint();

private:
  WContainerWidget *container_ = nullptr;
};

} // namespace Wt

#endif // WT_WLAYOUT_H_
