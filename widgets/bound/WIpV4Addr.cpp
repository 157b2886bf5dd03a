// SPDX-License-Identifier: MIT
#include "WIpV4Addr.h"

#include "AddressPattern.h"

#include <Wt/WRegExpValidator>

WIpV4Addr::WIpV4Addr(const char *resourceName, const char *parameterName, bool isIndexed,
                     Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(resourceName, parameterName, isIndexed,
                                   new Wt::WRegExpValidator(AddressPattern_ipV4()), 57, parent)
{
  // A validator does not hold an empty text against its pattern.
  mandatorySet(true);
}
