// SPDX-License-Identifier: MIT
#include "WHostAddr.h"

#include "AddressPattern.h"

#include <Wt/WRegExpValidator>

WHostAddr::WHostAddr(const char *resourceName, const char *parameterName, bool isIndexed,
                     Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(resourceName, parameterName, isIndexed,
                                   new Wt::WRegExpValidator(AddressPattern_ipV6() + "|" +
                                                            AddressPattern_ipV4() + "|" +
                                                            AddressPattern_hostName() + "|^$"),
                                   255, parent)
{
}
