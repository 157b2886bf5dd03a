// SPDX-License-Identifier: MIT
#ifndef VIEWS_CASCADE_WSLAVESETTINGSVIEWSWXMODETABLE_H_
#define VIEWS_CASCADE_WSLAVESETTINGSVIEWSWXMODETABLE_H_

#include "WSettingsTable.h"

class WCascadeMode;
class WEid;

/// Whether this switch is a slave, and of which master.
class WSlaveSettingsViewSwxModeTable : public WSettingsTable
{
public:
  explicit WSlaveSettingsViewSwxModeTable(Wt::WContainerWidget *parent = 0);

  bool isAllValid() override;

  WCascadeMode *mode;
  WEid *masterEid;
};

#endif // VIEWS_CASCADE_WSLAVESETTINGSVIEWSWXMODETABLE_H_
