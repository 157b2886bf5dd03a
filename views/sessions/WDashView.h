// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WDASH_VIEW_H_
#define VIEWS_SESSIONS_WDASH_VIEW_H_

#include "MainView.h"

#include <Wt/WContainerWidget>

namespace Wt
{
class WGridLayout;
}

class WDashViewEventList;
class WDashViewSesList;

/// The first page after login: the user sessions and the unacknowledged events, kept up to date while it
/// shows.
class WDashView : public Wt::WContainerWidget, public MainView
{
public:
  explicit WDashView(Wt::WContainerWidget *parent = 0);

  /// Empties the list of events.
  virtual void eventLogClear();

  /// Reads both lists anew, keeping their selections: of sessions by store index, of events by row.
  virtual void readFromDatabase();
  void readAnew() override;

private:
  Wt::WGridLayout *layout;
  WDashViewSesList *sessionList;
  WDashViewEventList *eventList;
  Wt::WContainerWidget *spacer;
};

#endif // VIEWS_SESSIONS_WDASH_VIEW_H_
