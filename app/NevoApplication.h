// SPDX-License-Identifier: MIT
#ifndef APP_NEVO_APPLICATION_H_
#define APP_NEVO_APPLICATION_H_

#include "MainTabs.h"
#include "NevoSession.h"
#include "StoreSession.h"

#include <Wt/WApplication>
#include <ctime>
#include <memory>
#include <string>
#include <vector>

namespace Wt
{
class WTabWidget;
class WTable;
class WText;
class WTimer;
} // namespace Wt

class WBannerDialog;
class WInitAdminPasswordDialog;
class WLoginDialog;
class WMsgBoxSimple;
class WStandardHeader;

/**
 * The object of one browser session: its connection to the store, the way in through the front door, the page
 * with its tabs, and the timers that watch the session. It keeps no data of the system.
 *
 * A session connects to the store, waits at the front door (banner, login, first password), is logged in once
 * createUi() has run, and ends by restartWebApp() or by expiry.
 */
class NevoApplication : public Wt::WApplication, public StoreSession, public NevoSession
{
public:
  explicit NevoApplication(const Wt::WEnvironment &env);
  ~NevoApplication() override;

  bool userIsLoggedIn() const override { return loggedIn; }
  unsigned int getIndexOfCurrentlyLoggedInUsr() override { return loggedInUserIndex; }

  /// The session's connection to the store, opened if need be; it may be invalid all the same.
  ZelClient_s *getZelClient() override;

  /// Gives the connection back, so that a waiting page holds none of the store's.
  void closeZelClient() override;

  void updateNevoInactivityTimeout(unsigned int minutes) override;

  /// Logs the user out of the store and starts the page over at the front door.
  void logOutUser();

  /// Ends this session; the browser comes back as a new one.
  void restartWebApp();

  /// Ends the whole process with status 1; its supervisor starts it again.
  void exitApplication();

  void dashViewEventLogClear() override;

  /// Every view lets go of what was begun in it and not saved.
  void discardChanges() { mainTabs.discardChanges(); }

  bool sectionChanged(ChangeTracker::SectionId id) const override { return mainTabs.sectionChanged(id); }
  void sectionChanged(ChangeTracker::SectionId id, bool changed) override
  {
    mainTabs.sectionChanged(id, changed);
  }
  void subsectionChanged(ChangeTracker::SubsectionId id, bool changed) override
  {
    mainTabs.subsectionChanged(id, changed);
  }
  bool parentSectionChanged(ChangeTracker::SubsectionId id) const override
  {
    return mainTabs.parentSectionChanged(id);
  }
  /// The view of a slave's page keeps its edits to itself.
  bool anythingChanged() const override
  {
    return showingSlaveUi ? mainTabs.anyViewHasChanged() : mainTabs.anythingChanged();
  }

protected:
  void notify(const Wt::WEvent &event) override;

private:
  /// The session's first stage
  void initStringTranslation();
  void initBrand();
  void initZel();
  bool connectWithRetries(ZelClient_s *&client);
  void showConnectionError();

  /// The front door
  void showBannerOrLogin();
  void showBanner(std::string &text);
  void showLogin();
  void loginButtonClickedHandler();
  void showLoginFailure();
  void showLoginLockout();
  void showSetPassword(std::string username);
  void initPasswordDialogButtonClickedHandler();
  void forgotPasswordClickedHandler();
  void showFrontDoorNotice(std::unique_ptr<WMsgBoxSimple> &place, WMsgBoxSimple *box);

  /// The page
  void createUi();
  void chooseUi();
  void createMasterUi();
  void createManagedUi();
  void createSlaveUi();
  void beginPage();
  void endPage();

  /// The timers
  void startTimer(std::unique_ptr<Wt::WTimer> &timer, int milliseconds, void (NevoApplication::*handler)());
  void startInactivityTimer();
  void waitForLoginTurn();
  void startRedirectCheckTimer();
  void relaxRedirectCheckTimer();
  void stopRedirectCheckTimer();
  void startModeChangeCheckTimer();
  void stopModeChangeCheckTimer();
  void redirectToHttps();
  void modeChangeCheckTimeoutHandler();
  bool inactiveForTooLong();

  std::unique_ptr<WMsgBoxSimple> connectionErrorMsgBox;
  std::unique_ptr<WInitAdminPasswordDialog> initPasswordDialog;
  std::unique_ptr<WBannerDialog> bannerDialog;
  std::unique_ptr<WLoginDialog> loginDialog;
  std::unique_ptr<WMsgBoxSimple> loginFailureMsgBox;
  std::unique_ptr<WMsgBoxSimple> loginLockoutMsgBox;
  std::unique_ptr<WMsgBoxSimple> forgotPasswordMsgBox;
  Wt::WTable *mainTable;
  Wt::WTabWidget *mainTabWidget;
  WStandardHeader *standardHeader;
  MainTabs mainTabs;
  bool loggedIn;
  unsigned int loggedInUserIndex; ///< record of resource "user"
  bool showingSlaveUi;
  ZelClient_s *zelClient;
  std::time_t lastUserActivityTime;      ///< seconds since 1970
  unsigned int nevoInactivityTimeoutSec; ///< 0: never
  std::unique_ptr<Wt::WTimer> inactivityTimer;
  std::unique_ptr<Wt::WTimer> modeChangeCheckTimer;
  std::unique_ptr<Wt::WTimer> redirectCheckTimer;
  std::unique_ptr<Wt::WTimer> firstRedirectCheckTimer; ///< goes on after another one was started
  std::unique_ptr<Wt::WTimer> loginTurnTimer;          ///< while a login waits for others
  std::string initialManagedSetting;                   ///< "managedSetting" when the page was built
};

#endif // APP_NEVO_APPLICATION_H_
