// SPDX-License-Identifier: MIT
#include "WLineEditUInt32Zel.h"

#include "Decimal.h"

#include <cstdlib>

WLineEditUInt32Zel::WLineEditUInt32Zel(const char *resourceName, const char *parameterName, bool isIndexed,
                                       Wt::WContainerWidget *parent)
    : WEditZel<WLineEditPlus, unsigned int>(resourceName, parameterName, isIndexed, parent)
{
}

void WLineEditUInt32Zel::setValue(unsigned int value)
{
  setText(textOf(value));
}

Wt::WString WLineEditUInt32Zel::textOf(const unsigned int &value) const
{
  return Decimal_text(value);
}

Wt::WString WLineEditUInt32Zel::textOfRead(const unsigned int &value) const
{
  return Decimal_shortText(value);
}

unsigned int WLineEditUInt32Zel::valueOfText() const
{
  return static_cast<unsigned int>(std::strtol(text().toUTF8().c_str(), nullptr, 10));
}
