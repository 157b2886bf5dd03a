// SPDX-License-Identifier: MIT
#ifndef APP_WINIT_ADMIN_PASSWORD_DIALOG_H_
#define APP_WINIT_ADMIN_PASSWORD_DIALOG_H_

#include <Wt/WDialog>
#include <Wt/WString>
#include <string>

namespace Wt
{
class WPushButton;
class WTable;
} // namespace Wt

class WLineEditPlus;

/// Makes an administrator whose password was never set choose one.
class WInitAdminPasswordDialog : public Wt::WDialog
{
public:
  explicit WInitAdminPasswordDialog(const std::string &username);

  /// True when both fields hold the same, valid password.
  bool isAcceptable() const;

  const std::string &userName() const { return name; }
  WLineEditPlus *password() const { return passwordEdit; }
  WLineEditPlus *confirmation() const { return confirmationEdit; }

  Wt::WPushButton *setButton;

private:
  WLineEditPlus *addField(Wt::WTable &form, int row, const Wt::WString &label);
  void passwordChangedHandler();

  WLineEditPlus *passwordEdit;
  WLineEditPlus *confirmationEdit;
  std::string name;
};

#endif // APP_WINIT_ADMIN_PASSWORD_DIALOG_H_
