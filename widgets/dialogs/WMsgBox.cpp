// SPDX-License-Identifier: MIT
#include "WMsgBox.h"

#include "WDialogTitle.h"

#include <Wt/WCheckBox>
#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>
#include <Wt/WTimer>

WMsgBox::WMsgBox(MsgType type)
    : msgType(type), icon(0), layoutTable(new Wt::WTable(contents())), buttonTable(0), checkBox(0),
      button1(0), button2(0), button3(0), buttonClickedNumber(0)
{
  layoutTable->setMargin(Wt::WLength(12));
  Wt::WTableCell *buttonCell = layoutTable->elementAt(2, 0);
  buttonCell->setContentAlignment(Wt::AlignRight | Wt::AlignBottom);
  buttonTable = new Wt::WTable(buttonCell);
  buttonTable->elementAt(0, 2);
  rejectWhenEscapePressed();
}

void WMsgBox::titleSet(const Wt::WString &title)
{
  icon = WDialogTitle::build(*this, WDialogTitle::severityIcon(msgType), title).icon;
}

void WMsgBox::msgSet(const Wt::WString &message)
{
  showMessage(message, true);
}

void WMsgBox::msgSet(const char *message)
{
  showMessage(Wt::WString::fromUTF8(message), false);
}

void WMsgBox::showMessage(const Wt::WString &message, bool markup)
{
  Wt::WTableCell *cell = layoutTable->elementAt(0, 0);
  cell->clear();
  new Wt::WText(message, markup ? Wt::XHTMLText : Wt::PlainText, cell);
  cell->setPadding(Wt::WLength(6));
}

void WMsgBox::checkBoxSet(const Wt::WString &text)
{
  Wt::WTableCell *cell = layoutTable->elementAt(1, 0);
  cell->clear();
  checkBox = new Wt::WCheckBox(text, cell);
  cell->setPadding(Wt::WLength(12));
}

void WMsgBox::buttonAdd(const Wt::WString &text)
{
  struct Place {
    Wt::WPushButton *WMsgBox::*button;
    void (WMsgBox::*handler)();
    int column;
  };
  static const Place places[] = {{&WMsgBox::button1, &WMsgBox::button1ClickedHandler, 2},
                                 {&WMsgBox::button2, &WMsgBox::button2ClickedHandler, 1},
                                 {&WMsgBox::button3, &WMsgBox::button3ClickedHandler, 0}};
  for (const Place &place : places) {
    if (this->*place.button)
      continue;
    Wt::WPushButton *button = new Wt::WPushButton(text, buttonTable->elementAt(0, place.column));
    button->setMargin(Wt::WLength(4));
    button->clicked().connect(this, place.handler);
    this->*place.button = button;
    if (button == button1)
      button->setFocus();
    return;
  }
}

void WMsgBox::dangerSet()
{
  if (button1)
    button1->addStyleClass("nevo-danger");
}

Wt::WDialog::DialogCode WMsgBox::execWithTimeout(unsigned int milliseconds)
{
  Wt::WTimer timer;
  timer.setSingleShot(true);
  timer.setInterval(static_cast<int>(milliseconds));
  timer.timeout().connect(this, &WMsgBox::timeoutHandler);
  timer.start();
  return exec();
}

int WMsgBox::buttonClicked() const
{
  return buttonClickedNumber;
}

bool WMsgBox::isCheckBoxChecked() const
{
  return checkBox->checkState() == Wt::Checked;
}

void WMsgBox::button1ClickedHandler()
{
  finishWith(1);
}

void WMsgBox::button2ClickedHandler()
{
  finishWith(2);
}

void WMsgBox::button3ClickedHandler()
{
  finishWith(3);
}

void WMsgBox::timeoutHandler()
{
  accept();
}

void WMsgBox::finishWith(int buttonNumber)
{
  buttonClickedNumber = buttonNumber;
  accept();
}
