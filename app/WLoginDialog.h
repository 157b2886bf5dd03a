// SPDX-License-Identifier: MIT
#ifndef APP_WLOGIN_DIALOG_H_
#define APP_WLOGIN_DIALOG_H_

#include <Wt/WDialog>
#include <Wt/WString>

namespace Wt
{
class WAnchor;
class WContainerWidget;
class WLineEdit;
class WPushButton;
class WTable;
} // namespace Wt

/// The login: name, password and the way out for who has forgotten it. It wires nothing by itself.
class WLoginDialog : public Wt::WDialog
{
public:
  WLoginDialog();

  Wt::WString usernameGet() const;
  Wt::WString passwordGet() const;
  void clearFields();
  void setFocusOnUsernameField();

  Wt::WLineEdit *username;
  Wt::WLineEdit *password;
  Wt::WPushButton *loginButton;
  Wt::WAnchor *forgotPassword;

private:
  Wt::WLineEdit *addField(Wt::WTable &form, int row, const Wt::WString &label);
  void buildForm(Wt::WContainerWidget *parent);
};

#endif // APP_WLOGIN_DIALOG_H_
