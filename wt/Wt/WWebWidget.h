// SPDX-License-Identifier: MIT
#ifndef WT_WWEBWIDGET_H_
#define WT_WWEBWIDGET_H_

#include "../dom/Owner.h"

#include <Wt/WSignal>
#include <Wt/WWidget>
#include <cstdint>
#include <memory>
#include <vector>

namespace Wt
{

namespace Engine
{
class Page;
struct WidgetBox;
struct WidgetExtras;
} // namespace Engine

/**
 * A widget that has an element of its own on the page.
 *
 * The rendering contract, for the toolkit's own widgets:
 *
 * - A widget that changed calls repaint(). That is free for a widget that has no element yet (it renders
 * whole when its parent first shows it) and for one that is already marked. At the end of each event the
 * session renders the marked widgets, and only them.
 * - render(e) calls the base's render() first and then sets everything that it wants to be so, at creation
 * and at each change alike; Dom::Element sends only what differs. It must not create elements.
 * - renderContents(e) comes after it and fills the element. The base places the elements of
 * renderedChildren(). A widget that shows text ("#"), or has parts of its own that are no widgets (a check
 * box's label), overrides it; it makes the parts with e.document().create(tag, this) once, keeps them until
 * domGone tells of them, and puts them in place with e.setChildren or place().
 * - A hidden child that never was shown is not rendered; showing it marks its parent.
 * - domTag() may change while the widget lives; the element is then made anew.
 * - What the browser reports on any element that the widget owns arrives in handleDomEvent and formValue,
 * only while the widget is shown, enabled and not covered by a modal dialog. The base delivers events to the
 * signal of that name. An event that belongs to a behaviour "!name" is called "name" or "name:detail".
 *
 * Whose settings are whose on the element of a widget:
 *
 * - the base's render(): class, id, title, hidden, tabindex, aria-* and other attributes, *display, *width,
 * *height, *min-* and *max-* of these, *margin-*, *vertical-align, "@" listeners, "!size";
 * - the own class: what it adds, under keys that the base does not use;
 * - the parent's layout: *flex, *align-self, *justify-self, *grid-area, *grid-row, *grid-column, *order,
 * *position, *inset.
 *
 * A container with a layout gets its own *display, *gap, *padding and *grid-template-* from that layout.
 */
class WWebWidget : public WWidget, protected Dom::Owner
{
public:
  explicit WWebWidget(WContainerWidget *parent = nullptr);
  ~WWebWidget() override;

  void resize(const WLength &width, const WLength &height) override;
  WLength width() const override;
  WLength height() const override;
  void setMinimumSize(const WLength &width, const WLength &height) override;
  WLength minimumWidth() const override;
  WLength minimumHeight() const override;
  void setMaximumSize(const WLength &width, const WLength &height) override;
  WLength maximumWidth() const override;
  WLength maximumHeight() const override;
  void setMargin(const WLength &margin, WFlags<Side> sides = All) override;
  WLength margin(Side side) const override;
  void setHidden(bool hidden, const WAnimation &animation = WAnimation()) override;
  bool isHidden() const override { return flags_ & HiddenFlag; }
  bool isVisible() const override;
  void setDisabled(bool disabled) override;
  bool isDisabled() const override { return flags_ & DisabledFlag; }
  bool isEnabled() const override;
  void setInline(bool isInline) override;
  bool isInline() const override { return flags_ & InlineFlag; }
  using WWidget::setStyleClass;
  void setStyleClass(const WString &styleClass) override;
  WString styleClass() const override;
  using WWidget::addStyleClass;
  void addStyleClass(const WString &styleClass, bool force = false) override;
  using WWidget::removeStyleClass;
  void removeStyleClass(const WString &styleClass, bool force = false) override;
  bool hasStyleClass(const WString &styleClass) const override;
  void setVerticalAlignment(AlignmentFlag alignment, const WLength &length = WLength::Auto) override;
  AlignmentFlag verticalAlignment() const override;
  void setToolTip(const WString &text, TextFormat format = PlainText) override;
  WString toolTip() const override;
  void setAttributeValue(const std::string &name, const WString &value) override;
  WString attributeValue(const std::string &name) const override;
  using WWidget::setFocus;
  void setFocus(bool focus) override;
  bool hasFocus() const override;
  void refresh() override;
  bool layoutSizeAware() const override { return flags_ & SizeAwareFlag; }

  EventSignal<> &focussed() { return eventSignal<NoClass>("focus"); }
  EventSignal<> &blurred() { return eventSignal<NoClass>("blur"); }

protected:
  void setLayoutSizeAware(bool aware) override;
  WWebWidget *webWidget() const override { return const_cast<WWebWidget *>(this); }
  void propagateSetEnabled(bool enabled) override;
  void signalConnectionsChanged() override;

  /// The element's tag, a literal. By default "span" or "div", as the widget is inline or not.
  virtual const char *domTag() const;
  virtual void render(Dom::Element &e);
  virtual void renderContents(Dom::Element &e);
  /// Comes last, when the parts are there.
  virtual void finishRender(Dom::Element &e);
  /// The children that renderContents() places, in order.
  virtual std::vector<WWidget *> renderedChildren();
  /// The value of *display, a literal; null leaves it to the style sheets. By default "inline-block" or
  /// "block" where the widget was set to what its tag is not.
  virtual const char *displayStyle() const;
  /// Appends " name" for each class that is not in styleClass() but part of the element's class all the same.
  virtual void addOwnClasses(std::string &classes) const;
  /// A text that stands in for the tool tip, or null.
  virtual const WString *toolTipOverride() const;
  /// The listener's flags (Dom::Element, "@") of an event that is listened to: 'p' prevents the default
  /// action, 's' stops propagation.
  virtual const char *listenerFlags(const char *eventName) const;
  /// The element that gets the keyboard focus; by default the widget's own.
  virtual Dom::Element *focusElement() const { return element_; }
  /// `at` is the widget's element or a part of it.
  virtual void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event);
  /// What the form element `at` now holds. The base ignores it.
  virtual void formValue(Dom::Element &at, const std::string &value);
  /// Gives the value to formValue() if the widget is enabled.
  void domValue(Dom::Element &at, const std::string &value) override;
  /// The widget's element, or a part of it, is being destroyed. An override calls the base's.
  void domGone(Dom::Element &gone) noexcept override;

  /// Marks the widget to be rendered at the end of the event.
  void repaint();

  /// Makes the elements of `children` (rendering those which are new) the children of `into`, a part of this
  /// widget's element. Hidden children that never were shown are left out.
  void place(Dom::Element &into, const std::vector<WWidget *> &children);
  /// The element of a child, rendered if it is new; null for a hidden child that never was shown.
  static Dom::Element *elementOf(WWidget *child, Dom::Document &document);

  /// Destroys the element with all below it in one operation: for destructors that delete many children, and
  /// for a content that should be made anew.
  void dropElement();

  /// The signal of that browser event, made when first asked for. `name` is a literal.
  template <typename E> EventSignal<E> &eventSignal(const char *name)
  {
    if (EventSignalBase *found = findSignal(name))
      return static_cast<EventSignal<E> &>(*found);
    auto made = std::make_unique<EventSignal<E>>(name, this);
    EventSignal<E> &signal = *made;
    keepSignal(std::move(made));
    return signal;
  }
  /// The signal if it was ever asked for, or null.
  EventSignalBase *findSignal(const char *name) const;

  /// The widget's element; null until it is rendered.
  Dom::Element *element_ = nullptr;

private:
  friend class Engine::Page;
  friend class WCompositeWidget;
  friend struct Engine::WidgetAccess;

  enum Flag : std::uint16_t { HiddenFlag = 1, DisabledFlag = 2, InlineFlag = 4, SizeAwareFlag = 8 };

  void domEvent(Dom::Element &at, const Engine::RawEvent &event) final;
  WWebWidget *ownerWidget() noexcept final { return this; }

  Engine::WidgetExtras &rare();
  Engine::WidgetBox &box();
  void keepSignal(std::unique_ptr<EventSignalBase> signal);
  void setFlag(Flag flag, bool on);
  WWebWidget *widgetAbove() const;
  bool sizeIsGiven() const;
  void create(Dom::Document &document);
  void renderAll(Dom::Element &e);
  void renderAgain();
  void renderHidden(Dom::Element &e);
  void renderToolTip(Dom::Element &e);
  void renderListeners(Dom::Element &e);
  void tellLayoutSize(const Engine::RawEvent &event);

  std::unique_ptr<Engine::WidgetExtras> rare_;
  std::uint32_t dirtyPlace_ = 0; ///< place in the page's list of marked widgets, from 1; 0 if not marked
  std::uint16_t flags_ = 0;
};

} // namespace Wt

#endif // WT_WWEBWIDGET_H_
