// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WSES_VIEW_LIST_H_
#define VIEWS_SESSIONS_WSES_VIEW_LIST_H_

#include "WObjListContextPanel.h"

/// The list of KVM sessions: who works at which receiver with which transmitter, in which mode, for how long.
class WSesViewList : public WObjListContextPanel
{
public:
  explicit WSesViewList(Wt::WContainerWidget *parent = 0);

  void readFromDatabase() override;
};

#endif // VIEWS_SESSIONS_WSES_VIEW_LIST_H_
