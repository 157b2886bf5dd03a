// SPDX-License-Identifier: MIT
#ifndef WT_WLINEEDIT_H_
#define WT_WLINEEDIT_H_

#include "../base/TextSelection.h"

#include <Wt/WFormWidget>

namespace Wt
{

/// A field for one line of text.
class WLineEdit : public WFormWidget
{
public:
  enum EchoMode { Normal, Password };

  explicit WLineEdit(WContainerWidget *parent = nullptr);
  explicit WLineEdit(const WString &content, WContainerWidget *parent = nullptr);
  ~WLineEdit() override;

  /// Checks the text with the validator; emits nothing.
  virtual void setText(const WString &text);
  const WString &text() const { return content_; }

  /// The width, in characters; 10 by default.
  void setTextSize(int characters);
  int textSize() const { return textSize_; }
  /// What the browser lets a user type; setText() may exceed it. -1: no limit.
  void setMaxLength(int characters);
  int maxLength() const { return maxLength_; }
  void setEchoMode(EchoMode mode);
  EchoMode echoMode() const { return password_ ? Password : Normal; }
  void setAutoComplete(bool enabled);
  bool autoComplete() const { return autoComplete_; }

  /// The selection is known only if the field had the focus at the browser's last event. Positions count
  /// characters; -1 is none.
  int selectionStart() const;
  WString selectedText() const;
  bool hasSelectedText() const;
  int cursorPosition() const;

  WString valueText() const override;
  void setValueText(const WString &value) override;

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event) override;
  void formValue(Dom::Element &at, const std::string &value) override;

private:
  WString content_;
  Engine::TextSelection selection_;
  int textSize_ = 10;
  int maxLength_ = -1;
  bool password_ = false;
  bool autoComplete_ = true;
};

} // namespace Wt

#endif // WT_WLINEEDIT_H_
