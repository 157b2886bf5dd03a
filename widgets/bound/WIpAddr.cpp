// SPDX-License-Identifier: MIT
#include "WIpAddr.h"

#include "AddressPattern.h"

#include <Wt/WRegExpValidator>

WIpAddr::WIpAddr(const char *resourceName, const char *parameterName, bool isIndexed,
                 Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(
          resourceName, parameterName, isIndexed,
          new Wt::WRegExpValidator(AddressPattern_ipV6() + "|" + AddressPattern_ipV4() + "|^$"), 57, parent)
{
}
