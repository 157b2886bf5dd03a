// SPDX-License-Identifier: MIT
#ifndef WT_WVALIDATOR_H_
#define WT_WVALIDATOR_H_

#include <Wt/WObject>
#include <Wt/WString>
#include <memory>
#include <vector>

namespace Wt
{

class WFormWidget;

/// Judges what a user typed. Empty text is Valid, or InvalidEmpty if the validator is mandatory.
class WValidator : public WObject
{
public:
  enum State { Invalid = 0, InvalidEmpty = 1, Valid = 2 };

  class Result
  {
  public:
    Result() : state_(Invalid) {}
    explicit Result(State state, const WString &message = WString::Empty) : state_(state), message_(message)
    {
    }
    State state() const { return state_; }
    const WString &message() const { return message_; }

  private:
    State state_;
    WString message_;
  };

  explicit WValidator(WObject *parent = nullptr);
  explicit WValidator(bool mandatory, WObject *parent = nullptr);
  ~WValidator() override;

  void setMandatory(bool mandatory);
  bool isMandatory() const { return mandatory_; }
  /// The message for a mandatory text that is empty.
  void setInvalidBlankText(const WString &text);
  WString invalidBlankText() const;

  virtual Result validate(const WString &input) const;

protected:
  /// Has the fields that use this validator validate again.
  void repaint();

private:
  friend class WFormWidget;

  void addFormWidget(WFormWidget *widget);
  void removeFormWidget(WFormWidget *widget);

  bool mandatory_ = false;
  std::unique_ptr<WString> blankText_;
  std::vector<WFormWidget *> formWidgets_;
};

} // namespace Wt

#endif // WT_WVALIDATOR_H_
