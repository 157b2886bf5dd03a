// SPDX-License-Identifier: MIT
#include "WIpV6Addr.h"

#include "AddressPattern.h"

#include <Wt/WRegExpValidator>

WIpV6Addr::WIpV6Addr(const char *resourceName, const char *parameterName, bool isIndexed,
                     Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(resourceName, parameterName, isIndexed,
                                   new Wt::WRegExpValidator(AddressPattern_ipV6()), 57, parent)
{
  // A validator does not hold an empty text against its pattern.
  mandatorySet(true);
}
