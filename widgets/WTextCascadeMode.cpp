// SPDX-License-Identifier: MIT
#include "WTextCascadeMode.h"

#include "Text.h"

WTextCascadeMode::WTextCascadeMode(const char *resourceName, const char *parameterName, bool isIndexed,
                                   Wt::WContainerWidget *parent)
    : WTextZel(resourceName, parameterName, isIndexed, parent)
{
}

Wt::WString WTextCascadeMode::textOfRead(const std::string &word) const
{
  return word == "master" ? ::text("Switch is a cascade master") : ::text("Switch is a cascade slave");
}
