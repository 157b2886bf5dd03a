// SPDX-License-Identifier: MIT
#include "WLoginDialog.h"

#include "Attributes.h"
#include "NevoPath.h"
#include "Text.h"

#include <Wt/WAnchor>
#include <Wt/WContainerWidget>
#include <Wt/WImage>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WTableColumn>
#include <Wt/WText>

namespace
{

const int kFieldCharacters = 30;
const int kFieldLimit = 60;

} // namespace

WLoginDialog::WLoginDialog()
{
  setTitleBarEnabled(false);
  setInline(false);
  addStyleClass("nevo-login-dialog");
  resize(Wt::WLength(721), Wt::WLength(475));

  Wt::WTable *outer = new Wt::WTable(contents());
  Wt::WImage *picture = new Wt::WImage(Wt::WLink(NevoPath_themeBase() + "login-banner.png"),
                                       text("Corvane KVM"), outer->elementAt(0, 0));
  picture->setWidth(Wt::WLength(700));
  outer->elementAt(0, 0)->setAttributeValue("role", "heading");
  outer->elementAt(0, 0)->setAttributeValue("aria-level", "1");

  Wt::WTable *inner = new Wt::WTable(outer->elementAt(1, 0));
  inner->setWidth(Wt::WLength(684));
  for (int column = 0; column < 3; ++column) {
    inner->elementAt(0, column);
    inner->columnAt(column)->setWidth(Wt::WLength(33, Wt::WLength::Percentage));
  }
  inner->elementAt(0, 1)->setContentAlignment(Wt::AlignCenter);
  buildForm(inner->elementAt(0, 1));

  if (const char *version = Attributes_getString("firmware.appversion", 0)) {
    Wt::WTableCell *cell = outer->elementAt(2, 0);
    cell->setPadding(Wt::WLength(8));
    cell->setContentAlignment(Wt::AlignRight);
    new Wt::WText(Wt::WString::fromUTF8(text("version").toUTF8() + " " + version), Wt::PlainText, cell);
  }
}

void WLoginDialog::buildForm(Wt::WContainerWidget *parent)
{
  Wt::WTable *form = new Wt::WTable(parent);
  form->addStyleClass("nevo-login-form");
  username = addField(*form, 0, text("Username"));
  password = addField(*form, 1, text("Password"));
  password->setEchoMode(Wt::WLineEdit::Password);
  loginButton = new Wt::WPushButton(text("Log In"), form->elementAt(2, 1));
  loginButton->setDefault(true);
  forgotPassword = new Wt::WAnchor(form->elementAt(3, 1));
  forgotPassword->setText(text("Forgot my password"));
  forgotPassword->setStyleClass("nevo-link");
  username->setFocus();
}

Wt::WLineEdit *WLoginDialog::addField(Wt::WTable &form, int row, const Wt::WString &label)
{
  Wt::WText *labelText = new Wt::WText(label, form.elementAt(row, 0));
  labelText->setStyleClass("nevo-label");
  Wt::WLineEdit *edit = new Wt::WLineEdit(form.elementAt(row, 1));
  edit->setTextSize(kFieldCharacters);
  edit->setMaxLength(kFieldLimit);
  edit->setAutoComplete(false);
  edit->setStyleClass("nevo-login-line-edit");
  edit->setAttributeValue("aria-label", label);
  return edit;
}

Wt::WString WLoginDialog::usernameGet() const
{
  return username->text();
}

Wt::WString WLoginDialog::passwordGet() const
{
  return password->text();
}

void WLoginDialog::clearFields()
{
  username->setText(Wt::WString());
  password->setText(Wt::WString());
}

void WLoginDialog::setFocusOnUsernameField()
{
  username->setFocus();
}
