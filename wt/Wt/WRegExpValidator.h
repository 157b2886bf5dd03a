// SPDX-License-Identifier: MIT
#ifndef WT_WREG_EXP_VALIDATOR_H_
#define WT_WREG_EXP_VALIDATOR_H_

#include <Wt/WGlobal>
#include <Wt/WValidator>

namespace Wt
{

namespace Engine
{
class Pattern;
}

/// Accepts texts that a regular expression matches as a whole; without a pattern, all texts.
class WRegExpValidator : public WValidator
{
public:
  explicit WRegExpValidator(WObject *parent = nullptr);
  explicit WRegExpValidator(const WString &pattern, WObject *parent = nullptr);
  ~WRegExpValidator() override;

  /// A pattern that is not well-formed is logged and matches nothing.
  void setRegExp(const WString &pattern);
  WString regExp() const { return pattern_; }
  void setFlags(WFlags<RegExpFlag> flags);
  WFlags<RegExpFlag> flags() const { return flags_; }
  void setInvalidNoMatchText(const WString &text);
  WString invalidNoMatchText() const;

  Result validate(const WString &input) const override;

private:
  void compile();

  WString pattern_;
  WFlags<RegExpFlag> flags_;
  std::shared_ptr<const Engine::Pattern> compiled_;
  std::unique_ptr<WString> noMatchText_;
};

} // namespace Wt

#endif // WT_WREG_EXP_VALIDATOR_H_
