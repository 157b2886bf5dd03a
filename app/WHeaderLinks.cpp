// SPDX-License-Identifier: MIT
#include "WHeaderLinks.h"

#include "Db.h"
#include "NevoApplication.h"
#include "Text.h"

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

enum LinkColumn { HelpColumn = 0, LogoutColumn = 2 };

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

void WHeaderLinks::logoutClickedHandler()
{
  if (NevoApplication *application = dynamic_cast<NevoApplication *>(Wt::WApplication::instance()))
    application->logOutUser();
}
