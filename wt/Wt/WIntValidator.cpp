// SPDX-License-Identifier: MIT
#include "base/OwnTexts.h"

#include <Wt/WIntValidator>
#include <algorithm>
#include <charconv>
#include <limits>

namespace Wt
{

struct WIntValidator::Texts {
  WString notANumber;
  WString tooSmall;
  WString tooLarge;
};

namespace
{

/// Reads an optional sign and decimal digits, nothing else.
bool parseInteger(const std::string &text, int &value)
{
  std::string_view digits = text;
  if (digits.size() > 1 && digits[0] == '+' && digits[1] != '-')
    digits.remove_prefix(1);
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return error == std::errc() && end == digits.data() + digits.size();
}

} // namespace

WIntValidator::WIntValidator(WObject *parent)
    : WIntValidator(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), parent)
{
}

WIntValidator::WIntValidator(int bottom, int top, WObject *parent)
    : WValidator(parent), bottom_(bottom), top_(top)
{
}

WIntValidator::~WIntValidator() = default;

void WIntValidator::setBottom(int bottom)
{
  setRange(bottom, top_);
}

void WIntValidator::setTop(int top)
{
  setRange(bottom_, top);
}

void WIntValidator::setRange(int bottom, int top)
{
  if (bottom == bottom_ && top == top_)
    return;
  bottom_ = bottom;
  top_ = top;
  repaint();
}

namespace
{

WString rangeText()
{
  return WString::fromUTF8(
      Engine::ownText("Wt.WIntValidator.BadRange", "The number must be between {1} and {2}"));
}

} // namespace

WIntValidator::Texts &WIntValidator::texts()
{
  if (!texts_)
    texts_ = std::make_unique<Texts>();
  return *texts_;
}

void WIntValidator::setInvalidNotANumberText(const WString &text)
{
  texts().notANumber = text;
  repaint();
}

WString WIntValidator::invalidNotANumberText() const
{
  if (texts_ && !texts_->notANumber.empty())
    return texts_->notANumber;
  return WString::fromUTF8(Engine::ownText("Wt.WIntValidator.NotAnInteger", "Must be an integer number"));
}

void WIntValidator::setInvalidTooSmallText(const WString &text)
{
  texts().tooSmall = text;
  repaint();
}

WString WIntValidator::invalidTooSmallText() const
{
  if (texts_ && !texts_->tooSmall.empty())
    return WString(texts_->tooSmall).arg(bottom_).arg(top_);
  return rangeText().arg(bottom_).arg(top_);
}

void WIntValidator::setInvalidTooLargeText(const WString &text)
{
  texts().tooLarge = text;
  repaint();
}

WString WIntValidator::invalidTooLargeText() const
{
  if (texts_ && !texts_->tooLarge.empty())
    return WString(texts_->tooLarge).arg(bottom_).arg(top_);
  return rangeText().arg(bottom_).arg(top_);
}

WValidator::Result WIntValidator::validate(const WString &input) const
{
  const std::string text = input.toUTF8();
  if (text.empty())
    return WValidator::validate(input);
  int value = 0;
  if (!parseInteger(text, value))
    return Result(Invalid, invalidNotANumberText());
  if (value < bottom_)
    return Result(Invalid, invalidTooSmallText());
  if (value > top_)
    return Result(Invalid, invalidTooLargeText());
  return Result(Valid);
}

} // namespace Wt
