// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_HIST_LIST_H_
#define VIEWS_EVENTS_WEVENT_VIEW_HIST_LIST_H_

#include "WEventViewList.h"

/// The events of the past. One can be selected.
class WEventViewHistList : public WEventViewList
{
public:
  explicit WEventViewHistList(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_HIST_LIST_H_
