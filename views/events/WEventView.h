// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_H_
#define VIEWS_EVENTS_WEVENT_VIEW_H_

#include "MainView.h"

#include <Wt/WContainerWidget>

namespace Wt
{
class WString;
}

class EventHistoryResource;
class WEventViewDetails;
class WEventViewHistList;
class WEventViewList;
class WEventViewUnAckedList;
class WNavAccordion;
class WNavAccordionStdCell;

/// The events tab: the unacknowledged events above those of the past, with the selected one's details below
/// and the actions at the left. The two lists are one selection: what is selected in one is not in the other.
class WEventView : public Wt::WContainerWidget, public MainView
{
public:
  explicit WEventView(Wt::WContainerWidget *parent = 0);

  /// Reads both lists anew, keeping their selections by event. The argument is without meaning here.
  virtual void readFromDatabase(bool discardEdits);
  void readAnew() override;
  virtual void ackActionButtonClicked();
  virtual void ackAllActionButtonClicked();
  virtual void clearActionButtonClicked();
  virtual void unAckedEventListSelectionChangedHandler();
  virtual void histEventListSelectionChangedHandler();

private:
  void addActions(WNavAccordion &accordion);
  WNavAccordionStdCell *addAction(WNavAccordion &accordion, const Wt::WString &title,
                                  const Wt::WString &button, const Wt::WString &description);
  /// Reads a list anew and selects in it what was selected before; true if there was something.
  bool refreshList(WEventViewList &list);
  void followSelection(WEventViewList &list, WEventViewList &other);

  WEventViewUnAckedList *unAckedEventList;
  WEventViewHistList *histEventList;
  WEventViewDetails *details;
  WNavAccordionStdCell *ackCell;
  WNavAccordionStdCell *ackAllCell;
  EventHistoryResource *historyResource;
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_H_
