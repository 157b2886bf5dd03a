// SPDX-License-Identifier: MIT
#include "WLineEditZel.h"

WLineEditZel::WLineEditZel(const char *resourceName, const char *parameterName, bool isIndexed,
                           Wt::WContainerWidget *parent)
    : WEditZel<WLineEditPlus, std::string>(resourceName, parameterName, isIndexed, parent)
{
}

void WLineEditZel::setContentChanged(bool changed)
{
  changedContent = changed;
}

Wt::WString WLineEditZel::textOf(const std::string &value) const
{
  return Wt::WString::fromUTF8(value);
}

std::string WLineEditZel::valueOfText() const
{
  return text().toUTF8();
}
