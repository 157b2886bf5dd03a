// SPDX-License-Identifier: MIT
#include "base/Log.h"
#include "base/OwnTexts.h"
#include "base/Pattern.h"

#include <Wt/WRegExpValidator>

namespace Wt
{

WRegExpValidator::WRegExpValidator(WObject *parent) : WValidator(parent) {}

WRegExpValidator::WRegExpValidator(const WString &pattern, WObject *parent)
    : WValidator(parent), pattern_(pattern)
{
  compile();
}

WRegExpValidator::~WRegExpValidator() = default;

void WRegExpValidator::compile()
{
  compiled_ = Engine::Pattern::shared(pattern_.toUTF8(), (flags_ & MatchCaseInsensitive).value() != 0);
  if (!compiled_->valid())
    Engine::log(Engine::LogLevel::Error, "WRegExpValidator",
                "pattern \"" + pattern_.toUTF8() + "\": " + compiled_->error());
}

void WRegExpValidator::setRegExp(const WString &pattern)
{
  pattern_ = pattern;
  compile();
  repaint();
}

void WRegExpValidator::setFlags(WFlags<RegExpFlag> flags)
{
  flags_ = flags;
  if (compiled_)
    compile();
  repaint();
}

void WRegExpValidator::setInvalidNoMatchText(const WString &text)
{
  noMatchText_ = std::make_unique<WString>(text);
  repaint();
}

WString WRegExpValidator::invalidNoMatchText() const
{
  return noMatchText_ ? *noMatchText_
                      : WString::fromUTF8(Engine::ownText("Wt.WRegExpValidator.Invalid", "Invalid input"));
}

WValidator::Result WRegExpValidator::validate(const WString &input) const
{
  const std::string text = input.toUTF8();
  if (text.empty() || !compiled_)
    return WValidator::validate(input);
  return compiled_->matches(text) ? Result(Valid) : Result(Invalid, invalidNoMatchText());
}

} // namespace Wt
