// SPDX-License-Identifier: MIT
#include "WEstabSesDialog.h"

#include "ListFilter.h"
#include "NevoPath.h"
#include "Text.h"
#include "WDialogTitle.h"
#include "WEstabSesRxTable.h"
#include "WEstabSesTxTable.h"
#include "WEstabSesUsrTable.h"
#include "WSesMode.h"

#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WPushButton>
#include <Wt/WTable>
#include <Wt/WTableCell>
#include <Wt/WText>

namespace
{

enum Row { InstructionRow, ModeRow, ListsRow, ButtonsRow };

// Pixels
const int kTextPadding = 6;
const int kListPadding = 8;
const int kListMargin = 17;
const int kButtonMargin = 4;

} // namespace

WEstabSesDialog::WEstabSesDialog()
    : modeSelector(0), usrTable(0), rxTable(0), txTable(0), cancelButton(0), connectButton(0),
      buttonClickedNumber(0)
{
  WDialogTitle::build(*this, NevoPath_themeBase() + "establish-kvm-session.png", text("Connect KVM Session"));
  addStyleClass("nevo-establish-session-dialog");
  Wt::WTable *table = new Wt::WTable(contents());
  new Wt::WText(text("Select the session mode, user account, receiver and transmitter to be used to connect "
                     "a new KVM session."),
                table->elementAt(InstructionRow, 0));
  table->elementAt(InstructionRow, 0)->setPadding(Wt::WLength(kTextPadding));
  modeSelector = new WSesMode(table->elementAt(ModeRow, 0));
  modeSelector->setStyleClass("nevo-attribute-table-read-write-combo-box");
  modeSelector->setAttributeValue("aria-label", text("Session Mode"));
  modeSelector->changed().connect(this, &WEstabSesDialog::modeSelectionChangedHandler);
  table->elementAt(ModeRow, 0)->setPadding(Wt::WLength(kTextPadding));
  addLists(table->elementAt(ListsRow, 0));
  addButtons(table->elementAt(ButtonsRow, 0));
  rejectWhenEscapePressed();
  modeSelector->setFocus();
  readUsers();
}

void WEstabSesDialog::addLists(Wt::WTableCell *cell)
{
  usrTable = new WEstabSesUsrTable();
  rxTable = new WEstabSesRxTable();
  txTable = new WEstabSesTxTable();
  Wt::WTable *row = new Wt::WTable(cell);
  int column = 0;
  for (WRecordTable *list : {static_cast<WRecordTable *>(usrTable), static_cast<WRecordTable *>(rxTable),
                             static_cast<WRecordTable *>(txTable)}) {
    Wt::WTableCell *place = row->elementAt(0, column++);
    place->addWidget(list);
    place->setContentAlignment(Wt::AlignLeft | Wt::AlignTop);
    place->setPadding(Wt::WLength(kListPadding));
    list->setMargin(Wt::WLength(kListMargin), Wt::Top | Wt::Bottom);
    addFilter(*list->records, *place);
    place->enterPressed().connect(this, &WEstabSesDialog::enterPressedInList);
  }
  usrTable->records->selectionChanged().connect(this, &WEstabSesDialog::usrSelectionChangedHandler);
  rxTable->records->selectionChanged().connect(this, &WEstabSesDialog::rxSelectionChangedHandler);
  txTable->records->selectionChanged().connect(this, &WEstabSesDialog::txSelectionChangedHandler);
}

void WEstabSesDialog::addButtons(Wt::WTableCell *cell)
{
  cell->setContentAlignment(Wt::AlignRight | Wt::AlignMiddle);
  Wt::WTable *row = new Wt::WTable(cell);
  cancelButton = new Wt::WPushButton(text("Cancel"), row->elementAt(0, 0));
  cancelButton->setMargin(Wt::WLength(kButtonMargin));
  cancelButton->clicked().connect(this, &WEstabSesDialog::cancelButtonClickedHandler);
  connectButton = new Wt::WPushButton(text("Connect"), row->elementAt(0, 1));
  connectButton->setMargin(Wt::WLength(kButtonMargin));
  connectButton->addStyleClass("nevo-primary");
  connectButton->clicked().connect(this, &WEstabSesDialog::connectButtonClickedHandler);
  connectButton->disable();
}

Info_ConnectionMode WEstabSesDialog::mode()
{
  return static_cast<Info_ConnectionMode>(modeSelector->getSelection());
}

bool WEstabSesDialog::getSelectedParameters(unsigned int &user, unsigned int &rx, unsigned int &tx,
                                            Info_ConnectionMode &chosenMode)
{
  if (!usrTable->selectedRecord(user) || !rxTable->selectedRecord(rx) || !txTable->selectedRecord(tx))
    return true;
  chosenMode = mode();
  return false;
}

void WEstabSesDialog::readUsers()
{
  usrTable->records->clearSelection();
  usrTable->readFromDatabase(mode());
  rxTable->clearData();
  txTable->clearData();
}

void WEstabSesDialog::modeSelectionChangedHandler()
{
  readUsers();
}

void WEstabSesDialog::usrSelectionChangedHandler()
{
  unsigned int user = 0;
  if (usrTable->selectedRecord(user)) {
    rxTable->records->clearSelection();
    rxTable->readFromDatabase(
        mode() == Info_ConnectionMode_Private ? Info_AccessMode_Private : Info_AccessMode_Share, user);
  }
  txTable->clearData();
  connectButton->disable();
}

void WEstabSesDialog::rxSelectionChangedHandler()
{
  unsigned int user = 0;
  unsigned int rx = 0;
  if (!usrTable->selectedRecord(user) || !rxTable->selectedRecord(rx))
    return;
  txTable->records->clearSelection();
  txTable->readFromDatabase(mode(), user, rx);
  connectButton->disable();
}

void WEstabSesDialog::txSelectionChangedHandler()
{
  connectButton->enable();
}

void WEstabSesDialog::enterPressedInList()
{
  unsigned int user = 0;
  unsigned int rx = 0;
  unsigned int tx = 0;
  Info_ConnectionMode chosenMode;
  if (connectButton->isEnabled() && !getSelectedParameters(user, rx, tx, chosenMode))
    connectButtonClickedHandler();
}

void WEstabSesDialog::connectButtonClickedHandler()
{
  buttonClickedNumber = 1;
  accept();
}

void WEstabSesDialog::cancelButtonClickedHandler()
{
  rejectAtOnce();
}
