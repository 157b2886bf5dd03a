// SPDX-License-Identifier: MIT
#include "dom/Element.h"

#include <Wt/WCheckBox>

namespace Wt
{

WCheckBox::WCheckBox(WContainerWidget *parent) : WAbstractToggleButton(parent) {}

WCheckBox::WCheckBox(const WString &text, WContainerWidget *parent) : WAbstractToggleButton(text, parent) {}

WCheckBox::~WCheckBox() = default;

void WCheckBox::setTristate(bool tristate)
{
  tristate_ = tristate;
}

void WCheckBox::setPartialStateSelectable(bool selectable)
{
  partialSelectable_ = selectable;
  repaint();
}

void WCheckBox::setCheckState(CheckState state)
{
  setState(state);
}

const char *WCheckBox::inputType() const
{
  return "checkbox";
}

void WCheckBox::renderInput(Dom::Element &input)
{
  WAbstractToggleButton::renderInput(input);
  input.setIf(partialSelectable_, "!tri", "1");
}

} // namespace Wt
