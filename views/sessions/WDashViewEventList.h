// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WDASH_VIEW_EVENT_LIST_H_
#define VIEWS_SESSIONS_WDASH_VIEW_EVENT_LIST_H_

#include "WCollapsingObjListContextPanel.h"

/// The dashboard's list of unacknowledged events, the newest on top.
class WDashViewEventList : public WCollapsingObjListContextPanel
{
public:
  explicit WDashViewEventList(Wt::WContainerWidget *parent = 0);

  void readFromDatabase() override;

  /// Empties the list.
  virtual void eventLogClear();
};

#endif // VIEWS_SESSIONS_WDASH_VIEW_EVENT_LIST_H_
