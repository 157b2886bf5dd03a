// SPDX-License-Identifier: MIT
#include "base/Utf8.h"
#include "dom/Element.h"

#include <Wt/WLineEdit>
#include <algorithm>

namespace Wt
{

namespace
{

/// The width that the page's runtime gives to every field by itself.
constexpr int kDefaultTextSize = 10;

} // namespace

WLineEdit::WLineEdit(WContainerWidget *parent) : WLineEdit(WString(), parent) {}

WLineEdit::WLineEdit(const WString &content, WContainerWidget *parent)
    : WFormWidget(parent), content_(content)
{
  setInline(true);
}

WLineEdit::~WLineEdit() = default;

void WLineEdit::setText(const WString &text)
{
  content_ = text;
  revalidate();
  repaint();
}

void WLineEdit::setTextSize(int characters)
{
  textSize_ = characters;
  repaint();
}

void WLineEdit::setMaxLength(int characters)
{
  maxLength_ = characters;
  repaint();
}

void WLineEdit::setEchoMode(EchoMode mode)
{
  password_ = mode == Password;
  repaint();
}

void WLineEdit::setAutoComplete(bool enabled)
{
  autoComplete_ = enabled;
  repaint();
}

int WLineEdit::selectionStart() const
{
  return hasFocus() ? selection_.start(content_.toUTF8()) : -1;
}

WString WLineEdit::selectedText() const
{
  return hasFocus() ? WString::fromUTF8(selection_.selected(content_.toUTF8())) : WString();
}

bool WLineEdit::hasSelectedText() const
{
  return selectionStart() != -1;
}

int WLineEdit::cursorPosition() const
{
  return hasFocus() ? selection_.cursor(content_.toUTF8()) : -1;
}

WString WLineEdit::valueText() const
{
  return content_;
}

void WLineEdit::setValueText(const WString &value)
{
  setText(value);
}

const char *WLineEdit::domTag() const
{
  return "input";
}

void WLineEdit::render(Dom::Element &e)
{
  WFormWidget::render(e);
  if (textSize_ > 0 && (textSize_ != kDefaultTextSize || e.get("size")))
    e.set("size", std::to_string(textSize_));
  e.setIf(maxLength_ >= 0, "maxlength", std::to_string(maxLength_));
  e.setIf(password_, "type", "password");
  e.setIf(!autoComplete_, "autocomplete", "off");
  e.set("!sel", "1");
  showValue(e, ".value", content_.toUTF8());
}

void WLineEdit::handleDomEvent(Dom::Element &at, const Engine::RawEvent &event)
{
  if (!selection_.read(event))
    WFormWidget::handleDomEvent(at, event);
}

/// A browser lets nobody type more than the length allows; it leaves a longer text that the program has set.
void WLineEdit::formValue(Dom::Element &at, const std::string &value)
{
  std::string_view taken = value;
  if (maxLength_ >= 0)
    taken = Engine::utf16Prefix(
        value, std::max(static_cast<std::size_t>(maxLength_), Engine::utf16Length(content_.toUTF8())));
  content_ = WString::fromUTF8(std::string(taken));
  acceptValue(at, ".value", value);
  if (taken.size() != value.size())
    repaint();
  revalidate();
}

} // namespace Wt
