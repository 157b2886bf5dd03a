// SPDX-License-Identifier: MIT
#include "Attributes.h"
#include "Clock.h"
#include "Db.h"
#include "EventLog.h"
#include "NevoApplication.h"
#include "Text.h"
#include "WDashView.h"
#include "WEventView.h"
#include "WSesView.h"
#include "WStandardHeader.h"

#include <Wt/WContainerWidget>
#include <Wt/WTabWidget>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>
#include <Wt/WTimer>

namespace
{

/// A page of one tab that says why there is nothing to be done here.
Wt::WText *notice(const Wt::WString &message)
{
  Wt::WText *page = new Wt::WText(message, Wt::PlainText);
  page->setInline(false);
  page->setStyleClass("nevo-page-notice");
  return page;
}

} // namespace

void NevoApplication::createUi()
{
  relaxRedirectCheckTimer();
  loggedIn = true;
  lastUserActivityTime = Clock_now();
  std::vector<std::string> errors;
  unsigned int minutes = 0;
  if (Db_db.readUInt32("systemGlobals", 0, "nevoInactivityTimeout", minutes, errors) == 0)
    updateNevoInactivityTimeout(minutes);
  std::string name;
  Db_db.readString("user", loggedInUserIndex, "name", name, errors);
  EventLog_write(3, 7, "createUi", "%s logged in to NEVO.", name.c_str());

  // The page's main part is the tabs from now on.
  root()->setAttributeValue("role", "none");
  mainTable = new Wt::WTable();
  mainTable->setStyleClass("nevo-main-container");
  mainTabWidget = new Wt::WTabWidget();
  mainTabWidget->setInline(false);
  mainTabWidget->setStyleClass("nevo-main-tab");
  mainTabWidget->setAttributeValue("role", "main");
  standardHeader = new WStandardHeader(name, 0);
  standardHeader->setInline(false);
  standardHeader->setPadding(Wt::WLength(0));
  chooseUi();
}

void NevoApplication::chooseUi()
{
  std::vector<std::string> errors;
  bool fullWhenManaged = false;
  if (Db_db.readEnableDisable("systemGlobals", 0, "fullNevoWhenManaged", fullWhenManaged, errors) != 0)
    fullWhenManaged = false;
  const bool controller = Db_db.thisSwxIsCascadeController();
  const bool managed = Db_db.thisSwxIsManaged();
  if (controller && (!managed || fullWhenManaged)) {
    showingSlaveUi = false;
    createMasterUi();
  } else if (managed) {
    createManagedUi();
  } else {
    showingSlaveUi = true;
    createSlaveUi();
  }
  Db_db.readString("systemGlobals", 0, "managedSetting", initialManagedSetting, errors);
  if (!fullWhenManaged)
    startModeChangeCheckTimer();
}

void NevoApplication::beginPage()
{
  mainTable->elementAt(0, 0)->addWidget(standardHeader);
  mainTable->elementAt(1, 0)->addWidget(mainTabWidget);
}

void NevoApplication::endPage()
{
  root()->addWidget(mainTable);
  const char *version = Attributes_getString("firmware.appversion", 0);
  if (!version)
    return;
  Wt::WText *versionText =
      new Wt::WText(Wt::WString::fromUTF8(text("version").toUTF8() + " " + version), Wt::PlainText);
  versionText->setStyleClass("nevo-version-in-header");
  versionText->setAttributeValue("role", "contentinfo");
  root()->addWidget(versionText);
}

void NevoApplication::createMasterUi()
{
  beginPage();
  mainTabs.build(*mainTabWidget,
                 {
                     {text("Dashboard"), std::nullopt, MainTab::make<WDashView>},
                     {text("Sessions"), std::nullopt, MainTab::make<WSesView>},
                     {text("Events"), ChangeTracker::SectionEvents, MainTab::make<WEventView>},
                 });
  endPage();
}

void NevoApplication::createManagedUi()
{
  beginPage();
  const Wt::WString title =
      Db_db.thisSwxIsCascadeController() ? text("Managed Master Settings") : text("Managed Slave Settings");
  mainTabWidget->addTab(notice(text("This switch is under an external manager. Use the manager to change its "
                                    "settings: this page does not offer them.")),
                        title, Wt::WTabWidget::LazyLoading);
  endPage();
}

void NevoApplication::createSlaveUi()
{
  beginPage();
  mainTabWidget->addTab(
      notice(text("This switch is a slave in a cascade. Log in to the master switch to run the "
                  "system: this page does not offer the slave's own settings.")),
      text("Slave Switch Settings"), Wt::WTabWidget::LazyLoading);
  endPage();
}
