// SPDX-License-Identifier: MIT
#ifndef WT_WINT_VALIDATOR_H_
#define WT_WINT_VALIDATOR_H_

#include <Wt/WValidator>

namespace Wt
{

/// Accepts decimal integers within a range, bounds included.
class WIntValidator : public WValidator
{
public:
  explicit WIntValidator(WObject *parent = nullptr);
  WIntValidator(int bottom, int top, WObject *parent = nullptr);
  ~WIntValidator() override;

  int bottom() const { return bottom_; }
  int top() const { return top_; }
  void setBottom(int bottom);
  void setTop(int top);
  virtual void setRange(int bottom, int top);
  void setInvalidNotANumberText(const WString &text);
  WString invalidNotANumberText() const;
  void setInvalidTooSmallText(const WString &text);
  WString invalidTooSmallText() const;
  void setInvalidTooLargeText(const WString &text);
  WString invalidTooLargeText() const;

  Result validate(const WString &input) const override;

private:
  struct Texts;
  Texts &texts();

  int bottom_;
  int top_;
  std::unique_ptr<Texts> texts_;
};

} // namespace Wt

#endif // WT_WINT_VALIDATOR_H_
