// SPDX-License-Identifier: MIT
#include "WHeaderLinks.h"

#include "Db.h"
#include "NevoApplication.h"
#include "Text.h"
#include "WConfirmation.h"
#include "WPrefs.h"

#include <Wt/WAnchor>
#include <Wt/WEvent>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <vector>

namespace
{

/// The vendor's online help, where the system names no other.
#ifndef NEVO_HELP_URL
#define NEVO_HELP_URL "https://help.example.com/corvane-kvm/"
#endif

enum LinkColumn { HelpColumn, PreferencesColumn, LogoutColumn };

std::string helpUrl()
{
  std::vector<std::string> errors;
  std::string custom;
  if (Db_db.readString("systemGlobals", 0, "nevoCustomHelpLink", custom, errors) == 0 && !custom.empty())
    return custom;
  return NEVO_HELP_URL;
}

} // namespace

WHeaderLinks::WHeaderLinks(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), table(new Wt::WTable(this))
{
  Wt::WAnchor *help = addLink(HelpColumn, text("Help"), "nevo-help-button");
  help->setLink(Wt::WLink(helpUrl()));
  help->setTarget(Wt::TargetNewWindow);
  if (Db_db.thisSwxIsMaster() && !Db_db.thisSwxIsManaged()) {
    Wt::WAnchor *preferences = addLink(PreferencesColumn, text("Preferences"), "nevo-preferences-button");
    preferences->clicked().connect(this, &WHeaderLinks::preferencesClickedHandler);
  }
  Wt::WAnchor *logout = addLink(LogoutColumn, text("Log out"), "nevo-logout-button");
  logout->clicked().connect(this, &WHeaderLinks::logoutClickedHandler);
}

Wt::WAnchor *WHeaderLinks::addLink(int column, const Wt::WString &label, const char *styleClass)
{
  Wt::WAnchor *link = new Wt::WAnchor(table->elementAt(0, column));
  link->setText(label);
  link->setStyleClass(styleClass);
  return link;
}

void WHeaderLinks::preferencesClickedHandler()
{
  WPrefs dialog;
  dialog.exec();
}

void WHeaderLinks::logoutClickedHandler()
{
  NevoApplication *application = dynamic_cast<NevoApplication *>(Wt::WApplication::instance());
  if (!application)
    return;
  const WConfirmation confirmation = {
      "enableLogoutUnsavedChangesWarning", text("Warning"),
      text("There are unsaved changes. Are you sure you want to discard your changes and log out?"),
      text("Discard changes"), false};
  if (application->anythingChanged() && !confirmation.ask())
    return;
  application->discardChanges();
  application->logOutUser();
}
