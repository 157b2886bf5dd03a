// SPDX-License-Identifier: MIT
#include "WSesView.h"

#include "Db.h"
#include "SelectionCommand.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WEstabSesDialog.h"
#include "WMsgBox.h"
#include "WNavAccordion.h"
#include "WNavAccordionStdCell.h"
#include "WNotice.h"
#include "WSesViewAttribs.h"
#include "WSesViewDetails.h"
#include "WSesViewList.h"
#include "WViewFrame.h"

#include <Wt/WVBoxLayout>
#include <memory>

namespace
{

const int kListHeight = 260;   ///< pixels
const int kSmallestList = 115; ///< pixels
const int kSettleTime = 1000;  ///< milliseconds that the store takes to drop the rows of ended sessions

struct NewSession {
  unsigned int user = 0;
  unsigned int rx = 0;
  unsigned int tx = 0;
  Info_ConnectionMode mode = Info_ConnectionMode_Share;
};

/// What the user wants to connect; null for nothing. The dialog is gone when it returns.
std::unique_ptr<NewSession> askForSession()
{
  WEstabSesDialog dialog;
  dialog.exec();
  std::unique_ptr<NewSession> wanted(new NewSession);
  if (dialog.buttonClicked() != 1 ||
      dialog.getSelectedParameters(wanted->user, wanted->rx, wanted->tx, wanted->mode))
    wanted.reset();
  return wanted;
}

void connectSession(const NewSession &wanted)
{
  Db::Errors errors;
  if (Db_db.createKvmSession(wanted.user, wanted.rx, wanted.tx, wanted.mode, errors) == 0)
    WNotice::show(WMsgBox::MsgInfo, text("Session"), text("Session has been successfully connected."));
  else
    WNotice::showError(text("Unable to create session."), errors);
}

} // namespace

WSesView::WSesView(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), list(new WSesViewList()), details(new WSesViewDetails()),
      disconnectCell(0)
{
  const WViewFrame frame = WViewFrame::build(*this);
  addActions(*frame.accordion);
  list->resize(Wt::WLength::Auto, Wt::WLength(kListHeight));
  list->setMinimumSize(Wt::WLength::Auto, Wt::WLength(kSmallestList));
  frame.panels->addWidget(list);
  frame.panels->addWidget(details, 1);
  frame.panels->setResizable(0);
  list->selectionChanged().connect(this, &WSesView::sesListSelectionChangedHandler);
  settleTimer.setSingleShot(true);
  settleTimer.setInterval(kSettleTime);
  settleTimer.timeout().connect(this, &WSesView::storeHasSettled);
  showSelection();
}

void WSesView::addActions(WNavAccordion &accordion)
{
  WNavAccordionStdCell *connectCell =
      new WNavAccordionStdCell(text("Connect"), text("Connect a video/audio/USB session between a specified "
                                                     "receiver and a transmitter, using a specified user "
                                                     "account."));
  connectCell->connectAction(this, &WSesView::estabSesActionButtonClicked);
  accordion.sectionAdd(text("Connect Session"), connectCell);
  disconnectCell =
      new WNavAccordionStdCell(text("Disconnect"), text("Disconnect an existing video/audio/USB session "
                                                        "between a receiver and transmitter."));
  disconnectCell->connectAction(this, &WSesView::discSesActionButtonClicked);
  accordion.sectionAdd(text("Disconnect Sessions"), disconnectCell);
}

void WSesView::readAnew()
{
  readFromDatabase(false);
}

void WSesView::readFromDatabase(bool)
{
  list->readFromDatabase();
  showSelection();
}

void WSesView::showSelection()
{
  const std::vector<unsigned int> selected = list->selectedIndexes();
  details->attribs->readFromDatabase(selected);
  if (selected.empty()) {
    disconnectCell->disableActionButton();
    details->hideContent();
  } else {
    disconnectCell->enableActionButton();
    details->showContent();
  }
}

void WSesView::estabSesActionButtonClicked()
{
  const std::unique_ptr<NewSession> wanted = askForSession();
  if (wanted)
    connectSession(*wanted);
  readFromDatabase(true);
}

void WSesView::discSesActionButtonClicked()
{
  const SelectionCommand command = {
      WConfirmation{"enableDisconnectSessionWarning", text("Confirm Session Disconnect"),
                    text("Are you sure you want to disconnect the selected session(s)?"), text("Disconnect")},
      SelectionCommand::EachInItsBox, text("Unable to disconnect session.")};
  if (!command.isWanted())
    return;
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  command.run(list->selectedIndexes(), [](unsigned int session, Db::Errors &errors) {
    return Db_db.destroyKvmSession(session, errors) == 0;
  });
  list->tableView->setSelectedIndexes(Wt::WModelIndexSet());
  settleTimer.start();
}

void WSesView::storeHasSettled()
{
  readFromDatabase(true);
}

void WSesView::sesListSelectionChangedHandler()
{
  readFromDatabase(false);
}
