// SPDX-License-Identifier: MIT
#ifndef WT_WABSTRACTTOGGLEBUTTON_H_
#define WT_WABSTRACTTOGGLEBUTTON_H_

#include <Wt/WFormWidget>

namespace Wt
{

/// Base of what a user switches on and off. Signals are the user's doing only; the state is new when they
/// come.
class WAbstractToggleButton : public WFormWidget
{
public:
  ~WAbstractToggleButton() override;

  /// Plain text beside the mark.
  void setText(const WString &text);
  const WString &text() const { return text_; }

  virtual bool isChecked() const { return state_ == Wt::Checked; }
  virtual void setChecked(bool checked);
  virtual void setChecked() { setChecked(true); }
  virtual void setUnChecked() { setChecked(false); }

  EventSignal<> &checked();
  EventSignal<> &unChecked();

  WString valueText() const override;
  /// "yes", "maybe" or "no".
  void setValueText(const WString &value) override;
  void refresh() override;

protected:
  explicit WAbstractToggleButton(WContainerWidget *parent = nullptr);
  explicit WAbstractToggleButton(const WString &text, WContainerWidget *parent = nullptr);

  CheckState state() const { return state_; }
  virtual void setState(CheckState state);
  /// Whether a user can choose the state between.
  virtual bool supportsPartial() const { return false; }
  /// The "type" of the input element.
  virtual const char *inputType() const = 0;
  /// The input element; null until it is rendered.
  Dom::Element *inputElement() const { return text_.empty() ? element_ : input_; }

  const char *domTag() const override;
  void renderContents(Dom::Element &e) override;
  virtual void renderInput(Dom::Element &input);
  Dom::Element *fieldElement() const override { return inputElement(); }
  Dom::Element *focusElement() const override { return inputElement(); }
  void formValue(Dom::Element &at, const std::string &value) override;
  void domGone(Dom::Element &gone) noexcept override;

private:
  void tellState();

  WString text_;
  Dom::Element *input_ = nullptr; ///< part of a label; without text the widget's element is the input itself
  Dom::Element *label_ = nullptr;
  CheckState state_ = Unchecked;
};

} // namespace Wt

#endif // WT_WABSTRACTTOGGLEBUTTON_H_
