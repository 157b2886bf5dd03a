// SPDX-License-Identifier: MIT
#include "WSesView.h"

#include "Db.h"
#include "NevoUtil.h"
#include "Text.h"
#include "WAutoSizeTableView.h"
#include "WConfirmation.h"
#include "WEstabSesDialog.h"
#include "WMsgBox.h"
#include "WNavAccordion.h"
#include "WNavAccordionStdCell.h"
#include "WNotice.h"
#include "WNumericSortFilterProxyModel.h"
#include "WSesViewAttribs.h"
#include "WSesViewDetails.h"
#include "WSesViewList.h"
#include "WViewFrame.h"

#include <Wt/WStandardItemModel>
#include <Wt/WVBoxLayout>
#include <memory>

namespace
{

const int kListHeight = 260;   ///< pixels
const int kSmallestList = 115; ///< pixels
const int kSettleTime = 1000;  ///< milliseconds that the store takes to drop the rows of ended sessions
const int kWaitBoxWidth = 250; ///< pixels, at most

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

/// Lets the store settle. A box says so, whose loop leaves the server's threads to the other sessions.
void waitForTheStore()
{
  WMsgBox box(WMsgBox::MsgInfo);
  box.titleSet(text("Disconnecting"));
  box.msgSet(text("Disconnecting the selected session(s). Please wait."));
  box.setMaximumSize(Wt::WLength(kWaitBoxWidth), Wt::WLength::Auto);
  box.execWithTimeout(kSettleTime);
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
  selectionConnection =
      list->tableView->selectionChanged().connect(this, &WSesView::sesListSelectionChangedHandler);
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
  // A rebuild of the list is no choice of the user's.
  selectionConnection.disconnect();
  std::vector<unsigned int> selected = selectedSessions();
  list->readFromDatabase();
  list->tableView->setSelectedZelIndexes(selected);
  selectionConnection =
      list->tableView->selectionChanged().connect(this, &WSesView::sesListSelectionChangedHandler);
  showSelection();
}

std::vector<unsigned int> WSesView::selectedSessions() const
{
  std::vector<unsigned int> sessions;
  NevoUtil_modelIndexSetToZelIndexVect(list->tableView->selectedIndexes(), list->model, list->proxyModel,
                                       sessions);
  return sessions;
}

void WSesView::showSelection()
{
  const std::vector<unsigned int> selected = selectedSessions();
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
  const WConfirmation confirmation = {"enableDisconnectSessionWarning", text("Confirm Session Disconnect"),
                                      text("Are you sure you want to disconnect the selected session(s)?"),
                                      text("Disconnect")};
  if (!confirmation.ask())
    return;
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  disconnectSelectedSessions();
  list->tableView->setSelectedIndexes(Wt::WModelIndexSet());
  waitForTheStore();
  readFromDatabase(true);
}

void WSesView::disconnectSelectedSessions()
{
  for (const unsigned int session : selectedSessions()) {
    Db::Errors errors;
    if (Db_db.destroyKvmSession(session, errors) != 0)
      WNotice::showError(text("Unable to disconnect session."), errors);
  }
}

void WSesView::sesListSelectionChangedHandler()
{
  readFromDatabase(false);
}
