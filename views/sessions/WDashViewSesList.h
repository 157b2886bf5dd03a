// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WDASH_VIEW_SES_LIST_H_
#define VIEWS_SESSIONS_WDASH_VIEW_SES_LIST_H_

#include "WCollapsingObjListContextPanel.h"

/// The dashboard's list of user sessions: who works at which receiver with which transmitter, and for how
/// long.
class WDashViewSesList : public WCollapsingObjListContextPanel
{
public:
  explicit WDashViewSesList(Wt::WContainerWidget *parent = 0);

  void readFromDatabase() override;
};

#endif // VIEWS_SESSIONS_WDASH_VIEW_SES_LIST_H_
