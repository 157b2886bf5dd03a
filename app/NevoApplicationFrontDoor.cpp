// SPDX-License-Identifier: MIT
#include "Db.h"
#include "LoginLockout.h"
#include "NevoApplication.h"
#include "Security.h"
#include "Text.h"
#include "WBannerDialog.h"
#include "WInitAdminPasswordDialog.h"
#include "WLineEditPlus.h"
#include "WLoginDialog.h"
#include "WMsgBoxSimple.h"

#include <Wt/WAnchor>
#include <Wt/WEvent>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WTimer>
#include <ctime>

namespace
{

// The lockout belongs to the process: one person's failures lock the login for every browser.
int sLoginFailureCount = 0;
std::time_t sLoginLockoutTimeSec = 0;

LoginLockout &lockout()
{
  static LoginLockout instance(sLoginFailureCount, sLoginLockoutTimeSec, LoginLockout::stateFileOfProcess());
  return instance;
}

} // namespace

void NevoApplication::showBannerOrLogin()
{
  std::vector<std::string> errors;
  bool enabled = false;
  std::string bannerText;
  if (Db_db.readEnableDisable("systemGlobals", 0, "nevoBannerEnable", enabled, errors) != 0 || !enabled ||
      Db_db.readString("systemGlobals", 0, "nevoBannerText", bannerText, errors) != 0 || bannerText.empty())
    showLogin();
  else
    showBanner(bannerText);
}

void NevoApplication::showBanner(std::string &bannerText)
{
  loginDialog.reset();
  if (!bannerDialog)
    bannerDialog.reset(new WBannerDialog(bannerText));
  closeZelClient();
  bannerDialog->proceedButton->clicked().connect(this, &NevoApplication::showLogin);
  bannerDialog->proceedButton->enterPressed().connect(this, &NevoApplication::showLogin);
  bannerDialog->proceedButton->setFocus();
  bannerDialog->show();
}

void NevoApplication::showLogin()
{
  redirectToHttps();
  startRedirectCheckTimer();
  loginTurnTimer.reset();
  initPasswordDialog.reset();
  bannerDialog.reset();
  loginFailureMsgBox.reset();
  forgotPasswordMsgBox.reset();
  loginLockoutMsgBox.reset();
  if (!loginDialog) {
    loginDialog.reset(new WLoginDialog());
    loginDialog->loginButton->clicked().connect(this, &NevoApplication::loginButtonClickedHandler);
    loginDialog->loginButton->enterPressed().connect(this, &NevoApplication::loginButtonClickedHandler);
    loginDialog->forgotPassword->clicked().connect(this, &NevoApplication::forgotPasswordClickedHandler);
    for (Wt::WLineEdit *edit : {loginDialog->username, loginDialog->password}) {
      edit->enterPressed().connect(this, &NevoApplication::loginButtonClickedHandler);
      edit->keyWentUp().connect(this, &NevoApplication::startInactivityTimer);
      edit->clicked().connect(this, &NevoApplication::startInactivityTimer);
    }
  }
  startInactivityTimer();
  loginDialog->clearFields();
  loginDialog->setFocusOnUsernameField();
  closeZelClient();
  loginDialog->show();
}

void NevoApplication::loginButtonClickedHandler()
{
  startInactivityTimer();
  const std::string password = loginDialog->passwordGet().toUTF8();
  const std::string username = loginDialog->usernameGet().toUTF8();
  loginTurnTimer.reset();
  LoginLockout::Attempt attempt(lockout());
  if (attempt.verdict() == LoginLockout::Verdict::LockedOut) {
    showLoginLockout();
    return;
  }
  if (attempt.verdict() == LoginLockout::Verdict::Wait) {
    waitForLoginTurn();
    return;
  }
  bool passwordIsInitialized = false;
  if (Security_loginNevoUser(username.c_str(), password.c_str(), loggedInUserIndex, passwordIsInitialized) !=
      0) {
    showLoginFailure();
    return;
  }
  attempt.succeeded();
  loginDialog->clearFields();
  loginDialog.reset();
  inactivityTimer.reset();
  if (passwordIsInitialized)
    createUi();
  else
    showSetPassword(username);
}

void NevoApplication::showFrontDoorNotice(std::unique_ptr<WMsgBoxSimple> &place, WMsgBoxSimple *box)
{
  place.reset(box);
  box->button1->clicked().connect(this, &NevoApplication::showLogin);
  box->button1->enterPressed().connect(this, &NevoApplication::showLogin);
  box->finished().connect(this, &NevoApplication::showLogin);
  box->button1->setFocus();
}

void NevoApplication::showLoginFailure()
{
  showFrontDoorNotice(
      loginFailureMsgBox,
      new WMsgBoxSimple(WMsgBoxSimple::MsgError, text("Authentication failure"),
                        text("Incorrect username, password, or privileges. Username and password are case "
                             "sensitive."),
                        text("Ok")));
  loginFailureMsgBox->show();
}

void NevoApplication::showLoginLockout()
{
  showFrontDoorNotice(
      loginLockoutMsgBox,
      new WMsgBoxSimple(WMsgBoxSimple::MsgWarning, text("Authentication lockout"),
                        text("There have been 5 successive login failures. You are locked out "
                             "for 5 minutes."),
                        text("Ok")));
  loginLockoutMsgBox->show();
}

void NevoApplication::forgotPasswordClickedHandler()
{
  startInactivityTimer();
  loginTurnTimer.reset();
  showFrontDoorNotice(
      forgotPasswordMsgBox,
      new WMsgBoxSimple(WMsgBoxSimple::MsgInfo, text("Forgot Password"),
                        text("Contact Technical Support for help resetting the administrator "
                             "password. To perform the reset, you will need physical access to "
                             "the serial port on this Switch."),
                        text("Ok")));
  forgotPasswordMsgBox->show();
}

void NevoApplication::showSetPassword(std::string username)
{
  initPasswordDialog.reset(new WInitAdminPasswordDialog(username));
  initPasswordDialog->setButton->clicked().connect(this,
                                                   &NevoApplication::initPasswordDialogButtonClickedHandler);
  for (Wt::WLineEdit *edit : {initPasswordDialog->password(), initPasswordDialog->confirmation()})
    edit->enterPressed().connect(this, &NevoApplication::initPasswordDialogButtonClickedHandler);
  initPasswordDialog->show();
}

void NevoApplication::initPasswordDialogButtonClickedHandler()
{
  if (!initPasswordDialog->isAcceptable())
    return;
  Security_setPassword(initPasswordDialog->userName().c_str(),
                       initPasswordDialog->password()->text().toUTF8().c_str());
  initPasswordDialog.reset();
  createUi();
}
