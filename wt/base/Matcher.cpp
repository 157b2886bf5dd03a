// SPDX-License-Identifier: MIT
#include "base/Matcher.h"

#include "base/Utf8.h"
#include "base/Value.h"

#include <cwctype>

namespace Wt
{
namespace Engine
{

namespace
{

const int kKindMask = 0xf;

std::string folded(const std::string &text)
{
  std::wstring wide = fromUtf8(text);
  for (wchar_t &c : wide)
    c = static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(c)));
  return toUtf8(wide);
}

/// The regular expression of a pattern in which * stands for any text and ? for any character.
std::string expressionOfWildCard(const std::string &wildCard)
{
  std::string result;
  for (char c : wildCard) {
    if (c == '*')
      result += ".*";
    else if (c == '?')
      result += '.';
    else if (std::string("\\^$.|+()[]{}").find(c) != std::string::npos)
      result += std::string("\\") + c;
    else
      result += c;
  }
  return result;
}

} // namespace

Matcher::Matcher(const boost::any &value, WFlags<MatchFlag> flags)
    : value_(value), text_(valueText(value)), kind_(flags.value() & kKindMask),
      caseSensitive_((flags & MatchCaseSensitive).value() != 0)
{
  if (kind_ == MatchRegExp)
    pattern_ = std::make_unique<Pattern>(text_, !caseSensitive_);
  else if (kind_ == MatchWildCard)
    pattern_ = std::make_unique<Pattern>(expressionOfWildCard(text_), !caseSensitive_);
  else if (!caseSensitive_)
    text_ = folded(text_);
}

bool Matcher::matches(const boost::any &candidate) const
{
  if (kind_ == MatchExactly)
    return candidate.type() == value_.type() && compareValues(candidate, value_) == 0;
  std::string text = valueText(candidate);
  if (pattern_)
    return pattern_->matches(text);
  if (!caseSensitive_)
    text = folded(text);
  switch (kind_) {
  case MatchStartsWith:
    return text.compare(0, text_.size(), text_) == 0;
  case MatchEndsWith:
    return text.size() >= text_.size() && text.compare(text.size() - text_.size(), text_.size(), text_) == 0;
  default:
    return text == text_;
  }
}

} // namespace Engine
} // namespace Wt
