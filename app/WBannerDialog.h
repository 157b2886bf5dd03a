// SPDX-License-Identifier: MIT
#ifndef APP_WBANNER_DIALOG_H_
#define APP_WBANNER_DIALOG_H_

#include <Wt/WDialog>
#include <string>

namespace Wt
{
class WPushButton;
}

/// The notice that a visitor must pass before the login.
class WBannerDialog : public Wt::WDialog
{
public:
  /// `text` is shown as it is: it can hold no markup.
  explicit WBannerDialog(const std::string &text);

  Wt::WPushButton *proceedButton;
};

#endif // APP_WBANNER_DIALOG_H_
