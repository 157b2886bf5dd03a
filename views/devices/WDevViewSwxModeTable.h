// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXMODETABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXMODETABLE_H_

#include "WSettingsTable.h"

class WCascadeMode;

/// The part that a switch plays in a cascade.
class WDevViewSwxModeTable : public WSettingsTable
{
public:
  explicit WDevViewSwxModeTable(Wt::WContainerWidget *parent = 0);

  WCascadeMode *mode;
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXMODETABLE_H_
