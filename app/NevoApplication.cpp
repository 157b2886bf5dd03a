// SPDX-License-Identifier: MIT
#include "NevoApplication.h"

#include "Attributes.h"
#include "Clock.h"
#include "Db.h"
#include "EventLog.h"
#include "Main.h"
#include "NevoPath.h"
#include "Security.h"
#include "Text.h"
#include "WBannerDialog.h"
#include "WDashView.h"
#include "WInitAdminPasswordDialog.h"
#include "WLoginDialog.h"
#include "WMsgBox.h"
#include "WMsgBoxSimple.h"
#include "ZelClient.h"

#include <Wt/WContainerWidget>
#include <Wt/WEnvironment>
#include <Wt/WEvent>
#include <Wt/WMessageResourceBundle>
#include <Wt/WPushButton>
#include <Wt/WTimer>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace
{

std::atomic<int> sAppInstanceCount(0);

const unsigned int kDefaultInactivitySeconds = 600;
const unsigned int kLeastInactivitySeconds = 60;
const unsigned int kNonsenseInactivitySeconds = 300; ///< stands in for a limit below the least
const int kConnectionRetries = 5;
const unsigned int kRetryMilliseconds = 1000;
const int kNoticeWidth = 250; ///< pixels

void countOut()
{
  const int count = --sAppInstanceCount;
  EventLog_write(4, 7, "NevoApplication", "In destructor. sAppInstanceCount = %d.", count);
}

/// Shows a notice without buttons for a while.
void showNotice(const Wt::WString &title, const Wt::WString &message)
{
  WMsgBox box(WMsgBox::MsgInfo);
  box.titleSet(title);
  box.msgSet(message);
  box.setMaximumSize(Wt::WLength(kNoticeWidth), Wt::WLength::Auto);
  box.execWithTimeout(kRetryMilliseconds);
}

} // namespace

NevoApplication::NevoApplication(const Wt::WEnvironment &env)
    : Wt::WApplication(env), mainTable(0), mainTabWidget(0), standardHeader(0), loggedIn(false),
      loggedInUserIndex(0), showingSlaveUi(false), zelClient(0), lastUserActivityTime(0),
      nevoInactivityTimeoutSec(kDefaultInactivitySeconds)
{
  const int count = ++sAppInstanceCount;
  EventLog_write(4, 7, "NevoApplication", "In constructor. sAppInstanceCount = %d.", count);
  initStringTranslation();
  initBrand();
  try {
    initZel();
  } catch (...) {
    // The browser went away while the store was tried: this object never comes to be, nor its destructor to
    // run.
    countOut();
    closeZelClient();
    throw;
  }
}

NevoApplication::~NevoApplication()
{
  countOut();
  inactivityTimer.reset();
  modeChangeCheckTimer.reset();
  redirectCheckTimer.reset();
  firstRedirectCheckTimer.reset();
  loginTurnTimer.reset();
  initPasswordDialog.reset();
  bannerDialog.reset();
  loginDialog.reset();
  loginFailureMsgBox.reset();
  loginLockoutMsgBox.reset();
  forgotPasswordMsgBox.reset();
  connectionErrorMsgBox.reset();
  // The widgets die while the store's connection still works.
  Wt::WContainerWidget *page = root();
  page->removeWidget(page);
  delete page;
  closeZelClient();
}

void NevoApplication::initStringTranslation()
{
  setLocale("en");
  char path[256];
  std::snprintf(path, sizeof path, "%s", Main_docRoot);
  std::strncat(path, "/resources/msgs-general", sizeof path - 1 - std::strlen(path));
  messageResourceBundle().use(path, true);
}

void NevoApplication::initBrand()
{
  struct Brand {
    const char *folder;
    const char *makerKey;
  };
  static const Brand brands[] = {{"halden", "[RSnnn]Nortexa"}, {"greyfen", "[RSnnn]Grey Fen"}};

  root()->setAttributeValue("role", "main");
  const std::string folder = NevoPath_brand();
  setCssTheme(folder);
  std::string title = text("Corvane KVM").toUTF8();
  for (const Brand &brand : brands)
    if (folder == brand.folder)
      title = Wt::WString::tr(brand.makerKey).toUTF8() + " " + title;
  setTitle(Wt::WString::fromUTF8(title));
}

bool NevoApplication::connectWithRetries(ZelClient_s *&client)
{
  bool good = Db_db.getZelClient(client) == 0;
  for (int i = 0; i < kConnectionRetries && !good; ++i) {
    showNotice(text("Retrying"),
               text("Attempting to establish a connection with the internal database server. "
                    "Please wait."));
    good = Db_db.getZelClient(client) == 0;
  }
  return good;
}

void NevoApplication::initZel()
{
  connectionErrorMsgBox.reset();
  ZelClient_s *client = 0;
  if (connectWithRetries(client)) {
    EventLog_write(4, 7, "initZel", "Connection made to ZEL Server.");
    std::vector<std::string> errors;
    unsigned int minutes = 0;
    if (Db_db.readUInt32("systemGlobals", 0, "nevoInactivityTimeout", minutes, errors) == 0) {
      updateNevoInactivityTimeout(minutes);
      showBannerOrLogin();
      return;
    }
  }
  showConnectionError();
}

void NevoApplication::showConnectionError()
{
  closeZelClient();
  EventLog_write(4, 7, "initZel",
                 "Unable to set up a good connection with ZEL Server. Session limit may have been reached.");
  connectionErrorMsgBox.reset(new WMsgBoxSimple(
      WMsgBoxSimple::MsgError, text("Error"), text("Error communicating with the internal database server."),
      text("Reset"), text("Retry")));
  connectionErrorMsgBox->button1->clicked().connect(this, &NevoApplication::exitApplication);
  connectionErrorMsgBox->button2->clicked().connect(this, &NevoApplication::initZel);
  // Escape would leave an empty page otherwise.
  connectionErrorMsgBox->finished().connect(this, &NevoApplication::initZel);
  connectionErrorMsgBox->button2->setFocus();
  connectionErrorMsgBox->show();
}

ZelClient_s *NevoApplication::getZelClient()
{
  if (ZelClient_isValid(zelClient))
    return zelClient;
  if (zelClient)
    ZelClient_close(zelClient);
  zelClient = ZelClient_new();
  EventLog_write(4, 7, "getZelClient",
                 ZelClient_isValid(zelClient) ? "Got new ZEL client." : "ZelClient_new() failed.");
  return zelClient;
}

void NevoApplication::closeZelClient()
{
  if (ZelClient_isValid(zelClient))
    EventLog_write(4, 7, "closeZelClient", "Closing ZEL client.");
  if (zelClient)
    ZelClient_close(zelClient);
  zelClient = 0;
}

void NevoApplication::updateNevoInactivityTimeout(unsigned int minutes)
{
  nevoInactivityTimeoutSec = minutes * 60;
}

bool NevoApplication::inactiveForTooLong()
{
  if (nevoInactivityTimeoutSec == 0)
    return false;
  if (nevoInactivityTimeoutSec < kLeastInactivitySeconds) {
    EventLog_write(4, 7, "notify", "nevoInactivityTimeoutSec = %u.", nevoInactivityTimeoutSec);
    nevoInactivityTimeoutSec = kNonsenseInactivitySeconds;
  }
  return lastUserActivityTime != 0 &&
         Clock_now() - lastUserActivityTime > static_cast<std::time_t>(nevoInactivityTimeoutSec);
}

void NevoApplication::notify(const Wt::WEvent &event)
{
  // Events without a kind of their own never log anybody out: the last of them comes while the session is
  // being destroyed, and a session that expires leaves no trace of a log out. A page always has timers that
  // tick.
  if (loggedIn && event.eventType() == Wt::UserEvent) {
    lastUserActivityTime = Clock_now();
  } else if (loggedIn && event.eventType() != Wt::OtherEvent && inactiveForTooLong()) {
    EventLog_write(3, 7, "notify", "Web user logged out due to inactivity.");
    logOutUser();
    processEvents();
  }
  Wt::WApplication::notify(event);
}

void NevoApplication::logOutUser()
{
  std::vector<std::string> errors;
  Security_logoutNevoUser(loggedInUserIndex, errors);
  loggedInUserIndex = 0;
  loggedIn = false;
  restartWebApp();
}

void NevoApplication::restartWebApp()
{
  stopModeChangeCheckTimer();
  stopRedirectCheckTimer();
  redirect("/");
  quit();
}

void NevoApplication::exitApplication()
{
  connectionErrorMsgBox.reset();
  showNotice(text("Resetting"), text("Resetting web server. Please wait."));
  // Other sessions' threads are at work: static objects must not be destroyed under them.
  std::fflush(0);
  std::_Exit(1);
}

void NevoApplication::dashViewEventLogClear()
{
  if (WDashView *dashView = mainTabs.find<WDashView>())
    dashView->eventLogClear();
}
