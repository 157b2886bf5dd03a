// SPDX-License-Identifier: MIT
#include "WTextAreaZel.h"

WTextAreaZel::WTextAreaZel(const char *resourceName, const char *parameterName, bool isIndexed,
                           Wt::WContainerWidget *parent)
    : WEditZel<WTextAreaPlus, std::string>(resourceName, parameterName, isIndexed, parent), maxLength(0)
{
}

void WTextAreaZel::setMaxLength(unsigned int characters)
{
  maxLength = characters;
  setAttributeValue("maxlength", Wt::WString::fromUTF8(std::to_string(maxLength)));
}

Wt::WString WTextAreaZel::textOf(const std::string &value) const
{
  return Wt::WString::fromUTF8(value);
}

std::string WTextAreaZel::valueOfText() const
{
  return text().toUTF8();
}
