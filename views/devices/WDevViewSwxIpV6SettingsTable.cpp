// SPDX-License-Identifier: MIT
#include "WDevViewSwxIpV6SettingsTable.h"

#include "Text.h"
#include "WIpV6Addr.h"
#include "WIpV6ConfigMethod.h"
#include "WTextZel.h"

#include <initializer_list>

WDevViewSwxIpV6SettingsTable::WDevViewSwxIpV6SettingsTable(Wt::WContainerWidget *parent)
    : WSettingsTable("swx/network/ipv6", CountsEnabledOnly, {text("Setting"), text("Value")}, parent)
{
  method = add<WIpV6ConfigMethod>(text("Configuration Method"), "ipv6ConfMethod",
                                  tr("tt.dev.swx.ipv6.configMethod"));
  address = add<WIpV6Addr>(text("IPv6 Address"), "ipAddress", tr("tt.dev.swx.ipv6.address"));
  Wt::WWidget *prefix =
      addNumber(text("Prefix Length"), "prefixLength", tr("tt.dev.swx.ipv6.prefixLength"), 1, 128, false);
  Wt::WWidget *gateway =
      add<WIpV6Addr>(text("Gateway Address"), "gatewayAddress", tr("tt.dev.swx.ipv6.gatewayAddress"));
  Wt::WWidget *preferred = addReadOnly<WTextZel>(text("Preferred DNS Server"), "ipv6PrimaryDnsServer");
  Wt::WWidget *alternate = addReadOnly<WTextZel>(text("Alternate DNS Server"), "ipv6SecondaryDnsServer");
  const auto isOne = [this] { return records().size() == 1; };
  for (Wt::WWidget *field : std::initializer_list<Wt::WWidget *>{method, preferred, alternate})
    enableWhile(field, isOne);
  for (Wt::WWidget *field : std::initializer_list<Wt::WWidget *>{address, prefix, gateway})
    enableWhile(field, [this, isOne] { return isOne() && isStatic(); });
}

bool WDevViewSwxIpV6SettingsTable::isStatic() const
{
  return method->currentIndex() == 3;
}

bool WDevViewSwxIpV6SettingsTable::isAnyValid()
{
  return !isStatic() || address->isValid();
}
