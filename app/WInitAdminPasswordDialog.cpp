// SPDX-License-Identifier: MIT
#include "WInitAdminPasswordDialog.h"

#include "NevoPath.h"
#include "Text.h"
#include "WLineEditPlus.h"

#include <Wt/WContainerWidget>
#include <Wt/WHBoxLayout>
#include <Wt/WImage>
#include <Wt/WPushButton>
#include <Wt/WRegExpValidator>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

const int kPasswordLimit = 20;
const int kFieldCharacters = 50;
const int kWidthLimit = 500; ///< pixels

} // namespace

WInitAdminPasswordDialog::WInitAdminPasswordDialog(const std::string &username)
    : Wt::WDialog(text("Set Password")), name(username)
{
  setMaximumSize(Wt::WLength(kWidthLimit), Wt::WLength::Auto);
  addStyleClass("nevo-set-password-dialog");
  Wt::WHBoxLayout *layout = new Wt::WHBoxLayout();
  contents()->setLayout(layout);

  Wt::WTable *pictureTable = new Wt::WTable();
  new Wt::WImage(Wt::WLink(NevoPath_themeBase() + "settings.png"), pictureTable->elementAt(0, 0));
  layout->addWidget(pictureTable);

  Wt::WTable *form = new Wt::WTable();
  layout->addWidget(form, 1);
  form->elementAt(0, 0)->setColumnSpan(2);
  new Wt::WText(text("explanation of setting password"), form->elementAt(0, 0));
  passwordEdit = addField(*form, 1, text("Password"));
  confirmationEdit = addField(*form, 2, text("Confirm Password"));
  setButton = new Wt::WPushButton(text("Set Password"), form->elementAt(3, 1));
  setButton->setDefault(true);
  setButton->disable();
  passwordEdit->setFocus();
}

WLineEditPlus *WInitAdminPasswordDialog::addField(Wt::WTable &form, int row, const Wt::WString &label)
{
  Wt::WText *labelText = new Wt::WText(label, form.elementAt(row, 0));
  labelText->setStyleClass("nevo-label");
  WLineEditPlus *edit = new WLineEditPlus(form.elementAt(row, 1));
  edit->setEchoMode(Wt::WLineEdit::Password);
  edit->setAutoComplete(false);
  edit->setMaxLength(kPasswordLimit);
  edit->setTextSize(kFieldCharacters);
  edit->setStyleClass("nevo-attribute-table-read-write-line-edit");
  edit->setValidator(new Wt::WRegExpValidator("^([!-~]*)$"));
  edit->setAttributeValue("aria-label", label);
  edit->valueChanged().connect(this, &WInitAdminPasswordDialog::passwordChangedHandler);
  return edit;
}

bool WInitAdminPasswordDialog::isAcceptable() const
{
  return !passwordEdit->text().empty() && passwordEdit->text() == confirmationEdit->text() &&
         passwordEdit->validate() == Wt::WValidator::Valid;
}

void WInitAdminPasswordDialog::passwordChangedHandler()
{
  setButton->setEnabled(isAcceptable());
}
