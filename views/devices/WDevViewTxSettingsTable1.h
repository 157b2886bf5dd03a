// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE1_H_
#define VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE1_H_

#include "WSettingsTable.h"

class WEnableDisable;
class WMacAddr;

/// The icon of transmitters, and how they wake their computers.
class WDevViewTxSettingsTable1 : public WSettingsTable
{
public:
  explicit WDevViewTxSettingsTable1(Wt::WContainerWidget *parent = 0);

  bool isAllValid() override;

private:
  WEnableDisable *wake;
  WMacAddr *address;
};

#endif // VIEWS_DEVICES_WDEVVIEWTXSETTINGSTABLE1_H_
