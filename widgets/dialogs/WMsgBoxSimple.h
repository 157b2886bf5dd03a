// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WMSG_BOX_SIMPLE_H_
#define WIDGETS_WMSG_BOX_SIMPLE_H_

#include <Wt/WDialog>
#include <Wt/WString>

namespace Wt
{
class WPushButton;
}

/// A notice for the time before login, when no modal loop may hold the session. It wires nothing by itself:
/// the caller connects the buttons and finished(), gives a button the focus and shows the box.
class WMsgBoxSimple : public Wt::WDialog
{
public:
  /// Any other value shows the error icon.
  enum MsgType { MsgInfo = 0, MsgWarning = 1, MsgError = 2 };

  /// Texts are resolved at once. An empty `button2Text` means one button.
  WMsgBoxSimple(MsgType type, const Wt::WString &title, const Wt::WString &message,
                const Wt::WString &button1Text, const Wt::WString &button2Text = Wt::WString());

  Wt::WPushButton *button1;
  Wt::WPushButton *button2; ///< null when there is only one
};

#endif // WIDGETS_WMSG_BOX_SIMPLE_H_
