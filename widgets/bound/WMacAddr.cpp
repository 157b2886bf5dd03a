// SPDX-License-Identifier: MIT
#include "WMacAddr.h"

#include <Wt/WRegExpValidator>

WMacAddr::WMacAddr(const char *resourceName, const char *parameterName, bool isIndexed,
                   Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditZel>(
          resourceName, parameterName, isIndexed,
          new Wt::WRegExpValidator(
              "^((([0-9A-Fa-f]{2}:){5}([0-9A-Fa-f]{2}))|(([0-9A-Fa-f]{2}:){7}([0-9A-Fa-f]{2}))"
              "|(([0-9A-Fa-f]{2}-){5}([0-9A-Fa-f]{2}))|(([0-9A-Fa-f]{2}-){7}([0-9A-Fa-f]{2})))$|^$"),
          23, parent)
{
}
