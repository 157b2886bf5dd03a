// SPDX-License-Identifier: MIT
#include "WTextCascadeRole.h"

WTextCascadeRole::WTextCascadeRole(const char *resourceName, const char *parameterName, bool isIndexed,
                                   Wt::WContainerWidget *parent)
    : WTextZel(resourceName, parameterName, isIndexed, parent)
{
}

Wt::WString WTextCascadeRole::textOfRead(const std::string &word) const
{
  if (word == "not_present")
    return Wt::WString::tr("swx.deviceDetails.cascadeRole.not_present");
  if (word == "controller")
    return Wt::WString::tr("swx.deviceDetails.cascadeRole.controller");
  if (word == "slave")
    return Wt::WString::tr("swx.deviceDetails.cascadeRole.slave");
  return Wt::WString::tr("swx.deviceDetails.cascadeRole.backup");
}
