// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_UN_ACKED_LIST_H_
#define VIEWS_EVENTS_WEVENT_VIEW_UN_ACKED_LIST_H_

#include "WEventViewList.h"

/// The events that nobody has acknowledged yet. Several can be selected.
class WEventViewUnAckedList : public WEventViewList
{
public:
  explicit WEventViewUnAckedList(Wt::WContainerWidget *parent = 0);
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_UN_ACKED_LIST_H_
