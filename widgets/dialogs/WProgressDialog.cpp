// SPDX-License-Identifier: MIT
#include "WProgressDialog.h"

#include "WDialogTitle.h"

#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WProgressBar>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

WProgressDialog::WProgressDialog(const char *iconUrl, const Wt::WString &titleText,
                                 const Wt::WString &messageText, const Wt::WString &buttonText)
    : title(WDialogTitle::build(*this, iconUrl, titleText).text)
{
  Wt::WTable *table = new Wt::WTable(contents());
  table->setMargin(Wt::WLength(12));
  message = new Wt::WText(messageText, table->elementAt(0, 0));
  bar = new Wt::WProgressBar(table->elementAt(1, 0));
  button = new Wt::WPushButton(buttonText, table->elementAt(2, 0));
  for (int row = 1; row < 3; ++row)
    table->elementAt(row, 0)->setContentAlignment(Wt::AlignLeft | Wt::AlignBottom);
  table->elementAt(3, 0)->setContentAlignment(Wt::AlignRight | Wt::AlignBottom);
  button->clicked().connect(this, &WProgressDialog::buttonClickedHandler);
}

void WProgressDialog::titleSet(const Wt::WString &text)
{
  title->setText(text);
}

void WProgressDialog::buttonTextSet(const Wt::WString &text)
{
  button->setText(text);
}

void WProgressDialog::msgSet(const Wt::WString &text)
{
  message->setText(text);
}

void WProgressDialog::progressUpdate(double value)
{
  bar->setValue(value);
}

void WProgressDialog::buttonClickedHandler()
{
  accept();
}
