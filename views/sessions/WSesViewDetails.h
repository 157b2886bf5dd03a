// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WSES_VIEW_DETAILS_H_
#define VIEWS_SESSIONS_WSES_VIEW_DETAILS_H_

#include "WCollapsingContextPanel.h"

class WSesViewAttribs;

/// The panel that tells more of the selected sessions.
class WSesViewDetails : public WCollapsingContextPanel
{
public:
  explicit WSesViewDetails(Wt::WContainerWidget *parent = 0);

  WSesViewAttribs *attribs;
};

#endif // VIEWS_SESSIONS_WSES_VIEW_DETAILS_H_
