// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WNOTICE_H_
#define WIDGETS_WNOTICE_H_

#include "WMsgBox.h"

#include <Wt/WString>
#include <string>
#include <vector>

/// Boxes that only tell something, with the one button "Close". They return when the user has closed them.
struct WNotice {
  static void show(WMsgBox::MsgType type, const Wt::WString &title, const Wt::WString &message);

  /// An error: the message, then each of the store's own messages behind a blank. All plain text.
  static void showError(const Wt::WString &message, const std::vector<std::string> &errors);
};

#endif // WIDGETS_WNOTICE_H_
