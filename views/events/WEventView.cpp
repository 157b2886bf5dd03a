// SPDX-License-Identifier: MIT
#include "WEventView.h"

#include "Db.h"
#include "EventHistoryResource.h"
#include "SelectionCommand.h"
#include "Text.h"
#include "WConfirmation.h"
#include "WEventViewDetails.h"
#include "WEventViewHistList.h"
#include "WEventViewMsgDetails.h"
#include "WEventViewUnAckedList.h"
#include "WNavAccordion.h"
#include "WNavAccordionStdCell.h"
#include "WViewFrame.h"

#include <Wt/WLink>
#include <Wt/WVBoxLayout>
#include <string>

namespace
{

// Pixels
const int kListHeight = 175;
const int kSmallestList = 115;
const int kDetailsHeight = 200;

void setUpList(WEventViewList &list)
{
  list.resize(Wt::WLength::Auto, Wt::WLength(kListHeight));
  list.setMinimumSize(Wt::WLength(0), Wt::WLength(kSmallestList));
}

} // namespace

WEventView::WEventView(Wt::WContainerWidget *parent)
    : Wt::WContainerWidget(parent), unAckedEventList(new WEventViewUnAckedList()),
      histEventList(new WEventViewHistList()),
      details(new WEventViewDetails(text("Event Details"), kDetailsHeight)), ackCell(0), ackAllCell(0),
      historyResource(new EventHistoryResource(this))
{
  setUpList(*unAckedEventList);
  setUpList(*histEventList);
  const WViewFrame frame = WViewFrame::build(*this, Wt::AlignJustify | Wt::AlignTop);
  addActions(*frame.accordion);
  frame.panels->addWidget(unAckedEventList);
  frame.panels->addWidget(histEventList);
  frame.panels->addWidget(details, 1);
  frame.panels->setResizable(0);
  frame.panels->setResizable(1);

  unAckedEventList->selectionChanged().connect(this, &WEventView::unAckedEventListSelectionChangedHandler);
  histEventList->selectionChanged().connect(this, &WEventView::histEventListSelectionChangedHandler);
}

void WEventView::addActions(WNavAccordion &accordion)
{
  ackCell = addAction(
      accordion, text("Acknowledge"), text("Acknowledge"),
      text("Acknowledge events by selecting one or more events then pressing the Acknowledge button."));
  ackCell->connectAction(this, &WEventView::ackActionButtonClicked);
  ackAllCell = addAction(accordion, text("Acknowledge All"), text("Acknowledge All"),
                         text("Acknowledge all unacknowledged events."));
  ackAllCell->connectAction(this, &WEventView::ackAllActionButtonClicked);

  Wt::WLink download(historyResource);
  addAction(accordion, text("Save History"), text("Save"),
            text("Download event history and save it to a file."))
      ->linkSet(download);

  addAction(accordion, text("Clear History"), text("Clear"),
            text("Clear all events from the history list. The current list of unacknowledged events is "
                 "unaffected."))
      ->connectAction(this, &WEventView::clearActionButtonClicked);
}

WNavAccordionStdCell *WEventView::addAction(WNavAccordion &accordion, const Wt::WString &title,
                                            const Wt::WString &button, const Wt::WString &description)
{
  WNavAccordionStdCell *cell = new WNavAccordionStdCell(button, description, 0);
  accordion.sectionAdd(title, cell);
  return cell;
}

void WEventView::readAnew()
{
  readFromDatabase(false);
}

void WEventView::readFromDatabase(bool)
{
  const bool unAckedSelected = refreshList(*unAckedEventList);
  // The selected event may tell something else now; of one that has just gone, the details stay.
  if (!unAckedSelected || unAckedEventList->numSelected() > 0)
    unAckedEventListSelectionChangedHandler();
  const bool histSelected = refreshList(*histEventList);
  if (histEventList->numSelected() > 0 || (!histSelected && !unAckedSelected))
    histEventListSelectionChangedHandler();
  if (unAckedEventList->rowCount() > 0)
    ackAllCell->enableActionButton();
  else
    ackAllCell->disableActionButton();
}

bool WEventView::refreshList(WEventViewList &list)
{
  const bool selected = list.numSelected() > 0;
  list.readFromDatabase();
  return selected;
}

void WEventView::ackActionButtonClicked()
{
  if (unAckedEventList->numSelected() == 0)
    return;
  // An event that somebody else has acknowledged meanwhile is gone all the same: nobody is told.
  const SelectionCommand acknowledge = {std::nullopt, SelectionCommand::NotTold, Wt::WString()};
  acknowledge.run(unAckedEventList->selectedIndexes(), [](unsigned int instance, Db::Errors &errors) {
    return !Db_db.ackSpecificAlert(instance, errors);
  });
  readFromDatabase(false);
}

void WEventView::ackAllActionButtonClicked()
{
  Db::Errors errors;
  Db_db.ackAllAlerts(errors);
  readFromDatabase(false);
}

void WEventView::clearActionButtonClicked()
{
  const WConfirmation confirmation = {"enableClearEventHistoryWarning", text("Confirm Clear"),
                                      text("Are you sure you want to clear the event history?"),
                                      text("Clear")};
  if (!confirmation.ask())
    return;
  Db::Errors errors;
  Db_db.clearAllHistoricalAlerts(errors);
  readFromDatabase(false);
}

void WEventView::unAckedEventListSelectionChangedHandler()
{
  if (unAckedEventList->numSelected() > 0)
    ackCell->enableActionButton();
  else
    ackCell->disableActionButton();
  followSelection(*unAckedEventList, *histEventList);
}

void WEventView::histEventListSelectionChangedHandler()
{
  followSelection(*histEventList, *unAckedEventList);
  // That took the other list's selection away without its handler.
  if (histEventList->numSelected() > 0)
    ackCell->disableActionButton();
}

void WEventView::followSelection(WEventViewList &list, WEventViewList &other)
{
  std::string date;
  std::string type;
  std::string eid;
  std::string message;
  if (list.numSelected() > 0) {
    other.clearSelection();
    unsigned int instance = 0;
    list.getCurrentlySelectedRecord(instance, date, type, eid, message);
  } else if (other.numSelected() > 0) {
    return;
  }
  const auto shown = [](const std::string &value) { return Wt::WString::fromUTF8(value); };
  details->showNothingSelected(list.numSelected() == 0);
  details->msgDetails->setContent(shown(type), shown(date), shown(eid), shown(message));
}
