// SPDX-License-Identifier: MIT
#include "Db.h"
#include "Main.h"
#include "NevoApplication.h"

#include <Wt/WEnvironment>
#include <Wt/WEvent>
#include <Wt/WTimer>

namespace
{

const int kLoginPageMilliseconds = 180000;
const int kRedirectCheckMilliseconds = 2000;
const int kRelaxedRedirectCheckMilliseconds = 5000;
const int kLoginTurnMilliseconds = 200;
const int kModeChangeCheckMilliseconds = 10000;

} // namespace

void NevoApplication::startTimer(std::unique_ptr<Wt::WTimer> &timer, int milliseconds,
                                 void (NevoApplication::*handler)())
{
  timer.reset(new Wt::WTimer());
  timer->setInterval(milliseconds);
  timer->timeout().connect(this, handler);
  timer->start();
}

void NevoApplication::startInactivityTimer()
{
  if (!inactivityTimer) {
    inactivityTimer.reset(new Wt::WTimer());
    inactivityTimer->setSingleShot(true);
    inactivityTimer->setInterval(kLoginPageMilliseconds);
    inactivityTimer->timeout().connect(this, &NevoApplication::restartWebApp);
  }
  inactivityTimer->start();
}

/// As many passwords are being tried as may be: this one is tried again in a moment.
void NevoApplication::waitForLoginTurn()
{
  loginTurnTimer.reset(new Wt::WTimer());
  loginTurnTimer->setSingleShot(true);
  loginTurnTimer->setInterval(kLoginTurnMilliseconds);
  loginTurnTimer->timeout().connect(this, &NevoApplication::loginButtonClickedHandler);
  loginTurnTimer->start();
}

void NevoApplication::startRedirectCheckTimer()
{
  // An earlier timer goes on until the session ends: two of them only make the same check twice. The same
  // goes for more of them, so that there never are more than two.
  if (redirectCheckTimer && !firstRedirectCheckTimer)
    firstRedirectCheckTimer = std::move(redirectCheckTimer);
  startTimer(redirectCheckTimer, kRedirectCheckMilliseconds, &NevoApplication::redirectToHttps);
}

void NevoApplication::relaxRedirectCheckTimer()
{
  stopRedirectCheckTimer();
  startTimer(redirectCheckTimer, kRelaxedRedirectCheckMilliseconds, &NevoApplication::redirectToHttps);
}

void NevoApplication::stopRedirectCheckTimer()
{
  redirectCheckTimer.reset();
}

void NevoApplication::startModeChangeCheckTimer()
{
  startTimer(modeChangeCheckTimer, kModeChangeCheckMilliseconds,
             &NevoApplication::modeChangeCheckTimeoutHandler);
}

void NevoApplication::stopModeChangeCheckTimer()
{
  modeChangeCheckTimer.reset();
}

void NevoApplication::redirectToHttps()
{
  if (environment().urlScheme() != "https")
    redirect("https://" + Main_secureHost(environment().hostName()) + url());
}

void NevoApplication::modeChangeCheckTimeoutHandler()
{
  std::vector<std::string> errors;
  std::string setting;
  if (Db_db.readString("systemGlobals", 0, "managedSetting", setting, errors) != 0)
    return;
  const bool becameManaged = setting == "verified" && initialManagedSetting == "non_managed";
  const bool becameUnmanaged = setting == "non_managed" && initialManagedSetting == "verified";
  if (becameManaged || becameUnmanaged)
    logOutUser();
}
