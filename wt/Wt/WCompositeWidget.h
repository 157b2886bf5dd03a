// SPDX-License-Identifier: MIT
#ifndef WT_WCOMPOSITEWIDGET_H_
#define WT_WCOMPOSITEWIDGET_H_

#include <Wt/WWidget>

namespace Wt
{

/// A widget made of another one, its implementation, which it owns and to which it passes everything on.
class WCompositeWidget : public WWidget
{
public:
  /// The implementation must be set before the widget is used.
  explicit WCompositeWidget(WContainerWidget *parent = nullptr);
  WCompositeWidget(WWidget *implementation, WContainerWidget *parent);
  ~WCompositeWidget() override;

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
  bool isHidden() const override;
  bool isVisible() const override;
  void setDisabled(bool disabled) override;
  bool isDisabled() const override;
  bool isEnabled() const override;
  void setInline(bool isInline) override;
  bool isInline() const override;
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
  bool layoutSizeAware() const override;

protected:
  /// Takes the implementation over and deletes the former one.
  void setImplementation(WWidget *implementation);
  WWidget *implementation() const { return implementation_; }

  /// The size of the implementation is told to this widget.
  void setLayoutSizeAware(bool aware) override;
  WWebWidget *webWidget() const override;
  void propagateSetEnabled(bool enabled) override;
  void removeChild(WObject *child) override;

private:
  WWidget *implementation_ = nullptr;
  bool hiddenEarly_ = false; ///< hidden before there was an implementation
  bool sizeAware_ = false;
};

} // namespace Wt

#endif // WT_WCOMPOSITEWIDGET_H_
