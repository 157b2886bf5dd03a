// SPDX-License-Identifier: MIT
#include "dom/Document.h"

#include <Wt/WAbstractToggleButton>

namespace Wt
{

namespace
{

/// What ".checked" of the browser's input is called in each state.
const char *const kBrowserStates[] = {"0", "-", "1"};
const char *const kValueTexts[] = {"no", "maybe", "yes"};

} // namespace

WAbstractToggleButton::WAbstractToggleButton(WContainerWidget *parent)
    : WAbstractToggleButton(WString(), parent)
{
}

WAbstractToggleButton::WAbstractToggleButton(const WString &text, WContainerWidget *parent)
    : WFormWidget(parent), text_(text)
{
  setInline(true);
}

WAbstractToggleButton::~WAbstractToggleButton() = default;

void WAbstractToggleButton::setText(const WString &text)
{
  text_ = text;
  repaint();
}

void WAbstractToggleButton::setChecked(bool checked)
{
  setState(checked ? Wt::Checked : Unchecked);
}

void WAbstractToggleButton::setState(CheckState state)
{
  state_ = state;
  repaint();
}

EventSignal<> &WAbstractToggleButton::checked()
{
  if (!findSignal("checked"))
    changed().connect(this, &WAbstractToggleButton::tellState);
  return eventSignal<NoClass>("checked");
}

EventSignal<> &WAbstractToggleButton::unChecked()
{
  checked();
  return eventSignal<NoClass>("unchecked");
}

void WAbstractToggleButton::tellState()
{
  const EventSignalBase *signal = findSignal(isChecked() ? "checked" : "unchecked");
  if (signal && state_ != PartiallyChecked)
    static_cast<const EventSignal<> *>(signal)->emit();
}

WString WAbstractToggleButton::valueText() const
{
  return kValueTexts[state_];
}

void WAbstractToggleButton::setValueText(const WString &value)
{
  for (const CheckState state : {Unchecked, PartiallyChecked, Wt::Checked})
    if (value == kValueTexts[state])
      setState(state);
}

void WAbstractToggleButton::refresh()
{
  if (text_.refresh())
    repaint();
  WFormWidget::refresh();
}

const char *WAbstractToggleButton::domTag() const
{
  return text_.empty() ? "input" : "label";
}

void WAbstractToggleButton::renderContents(Dom::Element &e)
{
  if (text_.empty()) {
    renderInput(e);
    return;
  }
  if (!input_)
    input_ = e.document().create("input", e.owner());
  if (!label_)
    label_ = e.document().create("span", e.owner());
  renderInput(*input_);
  label_->set("#", text_.toUTF8());
  e.setChildren({input_, label_});
}

void WAbstractToggleButton::renderInput(Dom::Element &input)
{
  input.set("type", inputType());
  if (state_ != Unchecked || input.get(".checked"))
    showValue(input, ".checked", kBrowserStates[state_]);
}

void WAbstractToggleButton::formValue(Dom::Element &at, const std::string &value)
{
  for (const CheckState state : {Unchecked, PartiallyChecked, Wt::Checked}) {
    if (value != kBrowserStates[state] || (state == PartiallyChecked && !supportsPartial()))
      continue;
    state_ = state;
    acceptValue(at, ".checked", value);
  }
}

void WAbstractToggleButton::domGone(Dom::Element &gone) noexcept
{
  if (&gone == input_)
    input_ = nullptr;
  if (&gone == label_)
    label_ = nullptr;
  WFormWidget::domGone(gone);
}

} // namespace Wt
