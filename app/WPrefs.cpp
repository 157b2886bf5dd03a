// SPDX-License-Identifier: MIT
#include "WPrefs.h"

#include "Db.h"
#include "NevoPath.h"
#include "Text.h"
#include "WDialogTitle.h"
#include "WMsgBoxDbErr.h"
#include "WPrefsTable.h"

#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <vector>

namespace
{

/// The record of the user whose session this is.
std::vector<unsigned int> ownRecord()
{
  return std::vector<unsigned int>(1, Db_db.getIndexOfCurrentlyLoggedInNevoUsr());
}

} // namespace

WPrefs::WPrefs()
{
  WDialogTitle::build(*this, NevoPath_themeBase() + "preferences.png", text("Preferences"));
  addStyleClass("nevo-preferences-dialog");
  rejectWhenEscapePressed();
  table = new WPrefsTable(contents());
  Wt::WContainerWidget *buttons = new Wt::WContainerWidget(contents());
  buttons->setStyleClass("nevo-dialog-buttons");
  cancelButton = new Wt::WPushButton(text("Cancel"), buttons);
  saveButton = new Wt::WPushButton(text("Save"), buttons);
  saveButton->setDefault(true);
  saveButton->disable();

  saveButton->clicked().connect(this, &WPrefs::saveButtonClickedHandler);
  cancelButton->clicked().connect(this, &WPrefs::cancelButtonClickedHandler);
  table->contentChanged().connect(this, &WPrefs::contentChangedHandler);
  table->readFromDatabase(ownRecord());
  table->setFocusOnFirst();
}

void WPrefs::contentChangedHandler()
{
  saveButton->enable();
  cancelButton->enable();
}

void WPrefs::saveButtonClickedHandler()
{
  std::vector<std::string> errors;
  if (table->writeToDatabase(ownRecord(), errors)) {
    WMsgBoxDbErr box(WMsgBoxDbErr::AccessWrite, errors);
    box.exec();
  }
  accept();
}

void WPrefs::cancelButtonClickedHandler()
{
  reject();
}
