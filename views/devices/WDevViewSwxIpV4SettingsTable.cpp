// SPDX-License-Identifier: MIT
#include "WDevViewSwxIpV4SettingsTable.h"

#include "Text.h"
#include "WIpV4Addr.h"
#include "WIpV4ConfigMethod.h"
#include "WTextZel.h"

#include <initializer_list>

WDevViewSwxIpV4SettingsTable::WDevViewSwxIpV4SettingsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx/network/ipv4", CountsEnabledOnly, {text("Setting"), text("Value")}, parent)
{
  method = add<WIpV4ConfigMethod>(text("Configuration Method"), "ipv4ConfMethod",
                                  tr("tt.dev.swx.ipv4.configMethod"));
  address = add<WIpV4Addr>(text("IPv4 Address"), "ipAddress", tr("tt.dev.swx.ipv4.address"));
  Wt::WWidget *mask = add<WIpV4Addr>(text("Subnet Mask"), "subnetMask", tr("tt.dev.swx.ipv4.subnetMask"));
  Wt::WWidget *gateway =
      add<WIpV4Addr>(text("Gateway Address"), "gatewayAddress", tr("tt.dev.swx.ipv4.gatewayAddress"));
  Wt::WWidget *preferred = addReadOnly<WTextZel>(text("Preferred DNS Server"), "ipv4PrimaryDnsServer");
  Wt::WWidget *alternate = addReadOnly<WTextZel>(text("Alternate DNS Server"), "ipv4SecondaryDnsServer");
  const auto isOne = [this] { return records().size() == 1; };
  for (Wt::WWidget *field : std::initializer_list<Wt::WWidget *>{method, preferred, alternate})
    enableWhile(field, isOne);
  for (Wt::WWidget *field : std::initializer_list<Wt::WWidget *>{address, mask, gateway})
    enableWhile(field, [this, isOne] { return isOne() && isStatic(); });
}

bool WDevViewSwxIpV4SettingsTable::isStatic() const
{
  return method->currentIndex() == 3;
}

bool WDevViewSwxIpV4SettingsTable::isAnyValid()
{
  return !isStatic() || address->isValid();
}
