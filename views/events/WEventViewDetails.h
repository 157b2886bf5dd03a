// SPDX-License-Identifier: MIT
#ifndef VIEWS_EVENTS_WEVENT_VIEW_DETAILS_H_
#define VIEWS_EVENTS_WEVENT_VIEW_DETAILS_H_

#include "WCollapsingContextPanel.h"

class WEventViewMsgDetails;

/// The panel below the events tab's lists: the selected event.
class WEventViewDetails : public WCollapsingContextPanel
{
public:
  /// `height` in pixels.
  WEventViewDetails(const Wt::WString &title, int height, Wt::WContainerWidget *parent = 0);

  /// Says below the empty fields that nothing is selected, or takes that away.
  void showNothingSelected(bool nothing);

  WEventViewMsgDetails *msgDetails;
};

#endif // VIEWS_EVENTS_WEVENT_VIEW_DETAILS_H_
