// SPDX-License-Identifier: MIT
#ifndef WT_WCHECKBOX_H_
#define WT_WCHECKBOX_H_

#include <Wt/WAbstractToggleButton>

namespace Wt
{

/// A check box. The program may set it to PartiallyChecked at any time; a user's click leads out of that
/// state, and into it only if setPartialStateSelectable() was called for a box of three states.
class WCheckBox : public WAbstractToggleButton
{
public:
  explicit WCheckBox(WContainerWidget *parent = nullptr);
  explicit WCheckBox(const WString &text, WContainerWidget *parent = nullptr);
  ~WCheckBox() override;

  void setTristate(bool tristate = true);
  bool isTristate() const { return tristate_; }
  void setPartialStateSelectable(bool selectable);
  bool isPartialStateSelectable() const { return partialSelectable_; }

  void setCheckState(CheckState state);
  CheckState checkState() const { return state(); }

protected:
  bool supportsPartial() const override { return partialSelectable_; }
  const char *inputType() const override;
  void renderInput(Dom::Element &input) override;

private:
  bool tristate_ = false;
  bool partialSelectable_ = false;
};

} // namespace Wt

#endif // WT_WCHECKBOX_H_
