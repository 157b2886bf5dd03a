// SPDX-License-Identifier: MIT
#ifndef WT_WWIDGET_H_
#define WT_WWIDGET_H_

#include <Wt/WAnimation>
#include <Wt/WGlobal>
#include <Wt/WLength>
#include <Wt/WObject>
#include <Wt/WString>

namespace Wt
{

class WContainerWidget;
class WWebWidget;

namespace Engine
{
struct WidgetAccess;
}

/// Base of everything that stands on a page. A widget belongs to its parent widget, which deletes it.
class WWidget : public WObject
{
public:
  explicit WWidget(WContainerWidget *parent = nullptr);
  ~WWidget() override;

  WWidget *parent() const { return static_cast<WWidget *>(WObject::parent()); }

  /// Negative sizes are made positive. The other size functions call this one.
  virtual void resize(const WLength &width, const WLength &height) = 0;
  void setWidth(const WLength &width) { resize(width, height()); }
  void setHeight(const WLength &height) { resize(width(), height); }
  virtual WLength width() const = 0;
  virtual WLength height() const = 0;
  virtual void setMinimumSize(const WLength &width, const WLength &height) = 0;
  virtual WLength minimumWidth() const = 0;
  virtual WLength minimumHeight() const = 0;
  virtual void setMaximumSize(const WLength &width, const WLength &height) = 0;
  virtual WLength maximumWidth() const = 0;
  virtual WLength maximumHeight() const = 0;

  virtual void setMargin(const WLength &margin, WFlags<Side> sides = All) = 0;
  virtual WLength margin(Side side) const = 0;

  /// The animation is the browser's alone: isHidden() changes at once.
  virtual void setHidden(bool hidden, const WAnimation &animation = WAnimation()) = 0;
  void hide() { setHidden(true); }
  void show() { setHidden(false); }
  void animateHide(const WAnimation &animation) { setHidden(true, animation); }
  void animateShow(const WAnimation &animation) { setHidden(false, animation); }
  /// The widget's own flag.
  virtual bool isHidden() const = 0;
  /// True if neither the widget nor anything above it is hidden, and it is in the page's tree.
  virtual bool isVisible() const = 0;

  /// Events and values that a browser reports of a disabled widget, or of one inside it, are ignored.
  virtual void setDisabled(bool disabled) = 0;
  void disable() { setDisabled(true); }
  void enable() { setDisabled(false); }
  /// The widget's own flag.
  virtual bool isDisabled() const = 0;
  /// True if neither the widget nor anything above it is disabled.
  virtual bool isEnabled() const = 0;

  virtual void setInline(bool isInline) = 0;
  virtual bool isInline() const = 0;

  /// Classes are words between blanks. The toolkit's own state classes are among them.
  virtual void setStyleClass(const WString &styleClass) = 0;
  void setStyleClass(const char *styleClass) { setStyleClass(WString::fromUTF8(styleClass)); }
  virtual WString styleClass() const = 0;
  virtual void addStyleClass(const WString &styleClass, bool force = false) = 0;
  void addStyleClass(const char *styleClass, bool force = false)
  {
    addStyleClass(WString::fromUTF8(styleClass), force);
  }
  virtual void removeStyleClass(const WString &styleClass, bool force = false) = 0;
  void removeStyleClass(const char *styleClass, bool force = false)
  {
    removeStyleClass(WString::fromUTF8(styleClass), force);
  }
  virtual bool hasStyleClass(const WString &styleClass) const = 0;
  void toggleStyleClass(const WString &styleClass, bool add, bool force = false);
  void toggleStyleClass(const char *styleClass, bool add, bool force = false)
  {
    toggleStyleClass(WString::fromUTF8(styleClass), add, force);
  }

  /// `length` is used if the alignment is AlignBaseline or none.
  virtual void setVerticalAlignment(AlignmentFlag alignment, const WLength &length = WLength::Auto) = 0;
  virtual AlignmentFlag verticalAlignment() const = 0;

  virtual void setToolTip(const WString &text, TextFormat format = PlainText) = 0;
  virtual WString toolTip() const = 0;

  virtual void setAttributeValue(const std::string &name, const WString &value) = 0;
  virtual WString attributeValue(const std::string &name) const = 0;

  virtual void setFocus(bool focus) = 0;
  void setFocus() { setFocus(true); }
  /// As far as the browser's last event told, or a later setFocus() asked.
  virtual bool hasFocus() const = 0;

  /// The locale may have changed: texts are looked up anew.
  virtual void refresh() = 0;

  virtual bool layoutSizeAware() const = 0;

protected:
  /// Lets layoutSizeChanged() be told the size that a layout gives to the widget.
  virtual void setLayoutSizeAware(bool aware) = 0;
  /// The content box in whole pixels; told at first layout and at each change.
  virtual void layoutSizeChanged(int width, int height);

  /// The widget that stands in the page for this one: itself, or of a composite what it is made of. Null for
  /// a composite without implementation.
  virtual WWebWidget *webWidget() const = 0;

  /// The widget, or something above it, was enabled or disabled as a whole.
  virtual void propagateSetEnabled(bool enabled) = 0;

private:
  friend class WWebWidget;
  friend class WCompositeWidget;
  friend class WContainerWidget;
  friend struct Engine::WidgetAccess;
};

} // namespace Wt

#endif // WT_WWIDGET_H_
