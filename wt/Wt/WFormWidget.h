// SPDX-License-Identifier: MIT
#ifndef WT_WFORMWIDGET_H_
#define WT_WFORMWIDGET_H_

#include <Wt/WInteractWidget>
#include <Wt/WValidator>

namespace Wt
{

class WLabel;

/**
 * Base of the widgets that hold a value which the user may change.
 *
 * What the browser holds is told as it changes, and with each event at the latest. For subclasses:
 * formValue() is called with it only while the widget is enabled and not read only, and not with a value that
 * is older than one which the program has set since. A subclass shows its value with showValue() in render(),
 * and accepts a browser's value with acceptValue() in formValue().
 */
class WFormWidget : public WInteractWidget
{
public:
  explicit WFormWidget(WContainerWidget *parent = nullptr);
  ~WFormWidget() override;

  virtual WString valueText() const = 0;
  virtual void setValueText(const WString &value) = 0;

  /// Owns a validator without parent. Null takes the present one away.
  void setValidator(WValidator *validator);
  WValidator *validator() const;

  /// Valid without a validator; else checks the value, shows the result and emits validated().
  virtual WValidator::State validate();
  Signal<WValidator::Result> &validated();

  void setEnabled(bool enabled) { setDisabled(!enabled); }
  void setHidden(bool hidden, const WAnimation &animation = WAnimation()) override;

  /// A browser's values of a read-only widget are ignored.
  virtual void setReadOnly(bool readOnly);
  bool isReadOnly() const { return readOnly_; }

  /// Shown in the empty field.
  void setEmptyText(const WString &text);
  const WString &emptyText() const;

  /// The label that has this widget as its buddy, or null.
  WLabel *label() const;

  /// The user has changed the value (texts: when the field is left, or with Enter).
  EventSignal<> &changed() { return eventSignal<NoClass>("change"); }
  EventSignal<> &selected() { return eventSignal<NoClass>("select"); }

  void refresh() override;

protected:
  void render(Dom::Element &e) override;
  void finishRender(Dom::Element &e) override;
  void addOwnClasses(std::string &classes) const override;
  const WString *toolTipOverride() const override;
  void propagateSetEnabled(bool enabled) override;
  void domValue(Dom::Element &at, const std::string &value) override;
  /// Where "disabled", "readonly", "placeholder", the validator's behaviour and the like go, at the end of
  /// the rendering; by default the widget's element.
  virtual Dom::Element *fieldElement() const { return element_; }

  /// Sets what the browser's field holds. `key` is ".value", ".checked" or the like.
  void showValue(Dom::Element &field, const char *key, std::string_view value);
  /// Notes what the browser's field holds already.
  void acceptValue(Dom::Element &field, const char *key, std::string_view value);
  /// Checks the value and shows the result, if there is a validator; emits nothing.
  void revalidate();

private:
  friend class WValidator;
  friend class WLabel;
  struct Rare;

  Rare &formRare();
  void setLabel(WLabel *label);
  WValidator::Result judge();
  void validatorChanged();
  void validatorGone();
  std::string validatorConfiguration() const;

  std::unique_ptr<Rare> formRare_;
  bool readOnly_ = false;
  bool unjudged_ = false; ///< has a validator that was not asked yet
};

} // namespace Wt

#endif // WT_WFORMWIDGET_H_
