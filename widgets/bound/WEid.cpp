// SPDX-License-Identifier: MIT
#include "WEid.h"

#include <Wt/WRegExpValidator>

WEid::WEid(const char *resourceName, const char *parameterName, bool isIndexed, Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(resourceName, parameterName, isIndexed,
                                   new Wt::WRegExpValidator("^([0-9a-zA-Z]{6,6}-[0-9a-zA-Z]{6,6})$"), 13,
                                   parent)
{
  // A validator does not hold an empty text against its pattern.
  mandatorySet(true);
}
