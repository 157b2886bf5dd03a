// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXIPV4SETTINGSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXIPV4SETTINGSTABLE_H_

#include "WSettingsTable.h"

class WIpV4Addr;
class WIpV4ConfigMethod;

/// The network settings of a switch, IPv4. They are never edited for several switches at once.
class WDevViewSwxIpV4SettingsTable : public WSettingsTable
{
public:
  explicit WDevViewSwxIpV4SettingsTable(Wt::WContainerWidget *parent = 0);

  bool isAnyValid() override;

private:
  bool isStatic() const;

  WIpV4ConfigMethod *method;
  WIpV4Addr *address;
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXIPV4SETTINGSTABLE_H_
