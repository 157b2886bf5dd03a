// SPDX-License-Identifier: MIT
#ifndef WT_WLAYOUT_H_
#define WT_WLAYOUT_H_

#include <Wt/WFlags>
#include <Wt/WGlobal>
#include <Wt/WLayoutItem>
#include <Wt/WObject>
#include <memory>
#include <vector>

namespace Wt
{

class WContainerWidget;

namespace Dom
{
class Document;
class Element;
} // namespace Dom
namespace Engine
{
class LayoutElements;
}

/**
 * Places widgets in a container. The container owns the layout, and the widgets that are added become the
 * container's children. Layouts nest; only the outermost one has margins.
 *
 * A layout is carried out by the browser: boxes become flexible boxes, grids become grids. Where an item
 * keeps its preferred size and is placed in its cell, the cell is an element of its own.
 */
class WLayout : public WLayoutItem, public WObject
{
public:
  ~WLayout() override;

  /// Adds an item at the end; the layout then owns it.
  virtual void addItem(WLayoutItem *item) = 0;
  void addWidget(WWidget *widget);
  /// Takes the item out; the caller then owns it. The widget stays the container's child.
  virtual void removeItem(WLayoutItem *item) = 0;
  /// Takes the widget out of the layout and of the container; the caller then owns it.
  void removeWidget(WWidget *widget);
  /// The index must be in range.
  virtual WLayoutItem *itemAt(int index) const = 0;
  virtual int count() const = 0;
  /// -1 if the item is not here.
  virtual int indexOf(WLayoutItem *item) const;
  /// Deletes all items and their widgets.
  virtual void clear() = 0;

  /// Pixels; 9 each by default. They count for a container's own layout only.
  void setContentsMargins(int left, int top, int right, int bottom);
  void getContentsMargins(int *left, int *top, int *right, int *bottom) const;

  WLayout *layout() override { return this; }
  WWidget *widget() override { return nullptr; }
  WLayoutItem *findWidgetItem(WWidget *widget) override;

  /// The layout around this one, or null.
  WLayout *parentLayout() const { return parentLayout_; }
  /// The container that is managed, or null.
  WWidget *parentWidget() const;

protected:
  WLayout();

  /// Makes this the layout of `parent`, which must be a container.
  void setLayoutInParent(WWidget *parent);

  /// Takes what is in the item into the container, if there is one. To be called for each item added.
  void itemAdded(WLayoutItem *item);
  void itemRemoved(WLayoutItem *item);
  /// To be called before an item is added: its widget leaves the place that it may have in its container's
  /// layout.
  static void aboutToAdd(WLayoutItem *item);
  /// To be called by destructors of derived classes: the widgets stay, without the layout's settings.
  void releaseItems();
  /// Something that shows has changed.
  void repaint();

  /// The managed element's *display, a literal.
  virtual const char *displayStyle() const = 0;
  /// Sets the layout's own settings on the managed element, but *display, and puts its items in place there.
  virtual void renderItems(Dom::Element &e) = 0;

  /// The element of an item's widget or layout; null for a hidden widget that was never shown.
  Dom::Element *itemElement(WLayoutItem *item, Dom::Document &document);
  /// True if the item's widget is told its size by the layout.
  static bool sizeControlled(WLayoutItem *item);
  /// True if nothing of the item shows.
  static bool hides(WLayoutItem *item);
  Engine::LayoutElements &elements() { return *elements_; }

private:
  friend class WContainerWidget;

  /// For the container

  /// This has become the layout of `container`, whose children its widgets become.
  void setContainer(WContainerWidget *container);
  /// A widget has left the container: its item goes with it.
  void widgetGone(WWidget *widget);
  /// Fills the container's element, with the margins.
  void renderInto(Dom::Element &e);

  void adopt(WLayoutItem *item);
  void watch(WLayoutItem *item);
  void widgetDestroyed(WObject *object);

  std::unique_ptr<Engine::LayoutElements> elements_;
  WContainerWidget *container_ = nullptr;
  WLayout *parentLayout_ = nullptr;
  int margins_[4] = {9, 9, 9, 9}; ///< left, top, right, bottom
};

} // namespace Wt

#endif // WT_WLAYOUT_H_
