// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXIPV6SETTINGSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXIPV6SETTINGSTABLE_H_

#include "WSettingsTable.h"

class WIpV6Addr;
class WIpV6ConfigMethod;

/// The network settings of a switch, IPv6. They are never edited for several switches at once.
class WDevViewSwxIpV6SettingsTable : public WSettingsTable
{
public:
  explicit WDevViewSwxIpV6SettingsTable(Wt::WContainerWidget *parent = 0);

  bool isAnyValid() override;

private:
  bool isStatic() const;

  WIpV6ConfigMethod *method;
  WIpV6Addr *address;
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXIPV6SETTINGSTABLE_H_
