// SPDX-License-Identifier: MIT
#include "WUsrViewAttribsTable.h"

#include "Text.h"
#include "WChangePassword.h"
#include "WEnableDisable.h"
#include "WPasswordZel.h"

#include <Wt/WRegExpValidator>
#include <Wt/WStackedWidget>

namespace
{

constexpr int kLongestPassword = 20;

bool isValid(Wt::WFormWidget &field)
{
  return field.validate() == Wt::WValidator::Valid;
}

} // namespace

WUsrViewAttribsTable::WUsrViewAttribsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("user", WritesFieldwise, {text("Attribute"), text("Value")}, parent)
{
  nameField = addLine(text("Username"), "name", tr("tt.usr.attr.name"), 20, "^([A-Za-z0-9]*)$", true);
  fullNameField = addLine(text("Full Name"), "fullName", tr("tt.usr.attr.fullName"), 40, "^([ -~]*)$");
  allowBlank = add<WEnableDisable>(text("Allow Blank Password"), "allowBlankPassword",
                                   tr("tt.usr.attr.allowBlankPassword"));
  add<WEnableDisable>(text("Allow OSD Password Change"), "allowPasswordChange",
                      tr("tt.usr.attr.allowOsdPasswordChange"));
  change = new WChangePassword();
  addRow(text("Change Password"), change, "nevo-attribute-table-read-write-cell",
         tr("tt.usr.attr.changePassword"));
  change->changed().connect(this, &WUsrViewAttribsTable::contentChangedHandler);
  password = addPassword(text("Password"), tr("tt.usr.attr.password"));
  password->setValidator(new Wt::WRegExpValidator("^([!-~]*)$"));
  confirmation = addPassword(text("Confirm Password"), tr("tt.usr.attr.confirmPassword"));
  const int status = rowCount();
  add<WEnableDisable>(text("Account Status"), "accountEnable", tr("tt.usr.attr.accountStatus"));
  elementAt(status, 1)->setStyleClass("nevo-attribute-table-read-write-non-text-cell");
  enableWhile(nameField, [this] { return records().size() < 2; });
  enableWhile(password, [this] { return changesPassword(); });
  enableWhile(confirmation, [this] { return changesPassword() && isValid(*password); });
  for (WPasswordZel *field : {password, confirmation})
    sendWhile(field, [this] { return changesPassword() && passwordsAgree(); });
}

/// Several users are shown a field that cannot be used.
WPasswordZel *WUsrViewAttribsTable::addPassword(const Wt::WString &label, const Wt::WString &toolTip)
{
  Wt::WStackedWidget *stack = new Wt::WStackedWidget();
  WPasswordZel *field = new WPasswordZel("user", "password", true, stack);
  field->setMaxLength(kLongestPassword);
  Wt::WLineEdit *unusable = new Wt::WLineEdit(stack);
  unusable->disable();
  addCell(addLabel(label), stack, "nevo-attribute-table-read-write-cell", toolTip);
  for (Wt::WWidget *line : {static_cast<Wt::WWidget *>(field), static_cast<Wt::WWidget *>(unusable)}) {
    line->setAttributeValue("aria-label", label);
    line->addStyleClass("nevo-attribute-table-read-write-line-edit");
  }
  enterField(field);
  stacks.push_back(stack);
  return field;
}

bool WUsrViewAttribsTable::changesPassword() const
{
  return change->currentIndex() == WChangePassword::Enabled;
}

bool WUsrViewAttribsTable::passwordsAgree() const
{
  return password->text() == confirmation->text();
}

void WUsrViewAttribsTable::readFromDatabase(std::vector<unsigned int> users, bool discardEdits)
{
  if (discardEdits)
    change->setCurrentIndex(WChangePassword::Disabled);
  for (Wt::WStackedWidget *stack : stacks)
    stack->setCurrentIndex(users.size() > 1 ? 1 : 0);
  WSettingsTable::readFromDatabase(users, discardEdits);
}

void WUsrViewAttribsTable::adjustDependentWidgets()
{
  password->validator()->setMandatory(allowBlank->currentIndex() != 0);
  WSettingsTable::adjustDependentWidgets();
  const bool differ = changesPassword() && !passwordsAgree();
  if (differ)
    confirmation->addStyleClass("Wt-invalid");
  else
    confirmation->removeStyleClass("Wt-invalid");
}

bool WUsrViewAttribsTable::writeToDatabase(std::vector<unsigned int> users, std::vector<std::string> &errors)
{
  const bool failed = WSettingsTable::writeToDatabase(users, errors);
  return failed || (changesPassword() && !passwordsAgree());
}

bool WUsrViewAttribsTable::isAllValid()
{
  return isValid(*nameField) &&
         (!changesPassword() || (isValid(*fullNameField) && isValid(*password) && passwordsAgree()));
}

bool WUsrViewAttribsTable::isAnyValid()
{
  return isValid(*nameField) || isValid(*fullNameField) ||
         (changesPassword() && isValid(*password) && passwordsAgree());
}

bool WUsrViewAttribsTable::anyWidgetHasFocus() const
{
  return change->hasFocus() || WSettingsTable::anyWidgetHasFocus();
}
