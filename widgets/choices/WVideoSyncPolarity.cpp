// SPDX-License-Identifier: MIT
#include "WVideoSyncPolarity.h"

#include "Convert.h"

WVideoSyncPolarity::WVideoSyncPolarity(const char *resourceName, const char *parameterName, bool isIndexed,
                                       Wt::WContainerWidget *parent)
    : WTextZel(resourceName, parameterName, isIndexed, parent)
{
}

Wt::WString WVideoSyncPolarity::textOf(const std::string &value) const
{
  return Wt::WString::fromUTF8(Convert_syncPolarityDbStringToUiString(value));
}
