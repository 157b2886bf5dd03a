// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WSES_VIEW_H_
#define VIEWS_SESSIONS_WSES_VIEW_H_

#include "MainView.h"

#include <Wt/WContainerWidget>
#include <Wt/WEvent>
#include <Wt/WTimer>

class WNavAccordion;
class WNavAccordionStdCell;
class WSesViewDetails;
class WSesViewList;

/// The tab of KVM sessions: the list, the details of what is selected in it, and the actions that connect a
/// session and disconnect the selected ones.
class WSesView : public Wt::WContainerWidget, public MainView
{
public:
  explicit WSesView(Wt::WContainerWidget *parent = 0);

  /// Reads list and details anew. The selection stays, without the sessions that have ended. The flag is
  /// there for what all views have in common: here is nothing unsaved that a reading could overwrite.
  virtual void readFromDatabase(bool force);
  void readAnew() override;
  virtual void estabSesActionButtonClicked();
  virtual void discSesActionButtonClicked();
  virtual void sesListSelectionChangedHandler();

private:
  void addActions(WNavAccordion &accordion);
  void showSelection();
  void storeHasSettled();

  WSesViewList *list;
  WSesViewDetails *details;
  WNavAccordionStdCell *disconnectCell;
  Wt::WTimer settleTimer; ///< runs while the store drops the rows of ended sessions
};

#endif // VIEWS_SESSIONS_WSES_VIEW_H_
