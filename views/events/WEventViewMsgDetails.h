// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_MSG_DETAILS_H_
#define VIEWS_EVENTS_WEVENT_VIEW_MSG_DETAILS_H_

#include "WAttributeTable.h"

/// What one event says, whole.
class WEventViewMsgDetails : public WAttributeTable
{
public:
  explicit WEventViewMsgDetails(Wt::WContainerWidget *parent = 0);

  /// Shows plain texts; empty ones where there is no event.
  void setContent(const Wt::WString &type, const Wt::WString &date, const Wt::WString &eid,
                  const Wt::WString &message);
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_MSG_DETAILS_H_
