// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WMSG_BOX_H_
#define WIDGETS_WMSG_BOX_H_

#include <Wt/WDialog>
#include <Wt/WString>

namespace Wt
{
class WCheckBox;
class WImage;
class WPushButton;
class WTable;
} // namespace Wt

/**
 * A confirmation or a notice, with up to three buttons and an optional check box. An object of local scope:
 * created, filled, run with exec() or execWithTimeout(), asked and destroyed in one handler.
 */
class WMsgBox : public Wt::WDialog
{
public:
  enum MsgType { MsgInfo = 0, MsgWarning = 1, MsgError = 2 };

  explicit WMsgBox(MsgType type);

  void titleSet(const Wt::WString &title);
  void msgSet(const Wt::WString &message);

  /// The same for a plain UTF-8 text that has been made already.
  void msgSet(const char *message);

  void checkBoxSet(const Wt::WString &text);

  /// Adds a button, the first one rightmost and with the focus. A fourth is dropped.
  void buttonAdd(const Wt::WString &text);

  /// Marks the first button as one that destroys something.
  void dangerSet();

  /// Like exec(), but the box accepts itself after so many milliseconds.
  DialogCode execWithTimeout(unsigned int milliseconds);

  /// 1, 2 or 3 in the order of buttonAdd; 0 when no button ended the dialog.
  int buttonClicked() const;

  /// Valid only after checkBoxSet().
  bool isCheckBoxChecked() const;

  virtual void button1ClickedHandler();
  virtual void button2ClickedHandler();
  virtual void button3ClickedHandler();
  virtual void timeoutHandler();

private:
  void finishWith(int buttonNumber);
  void showMessage(const Wt::WString &message, bool markup);

  MsgType msgType;
  Wt::WImage *icon;
  Wt::WTable *layoutTable;
  Wt::WTable *buttonTable;
  Wt::WCheckBox *checkBox;
  Wt::WPushButton *button1;
  Wt::WPushButton *button2;
  Wt::WPushButton *button3;
  int buttonClickedNumber;
};

#endif // WIDGETS_WMSG_BOX_H_
