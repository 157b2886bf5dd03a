// SPDX-License-Identifier: MIT
#include "Decimal.h"

#include <string>

Wt::WString Decimal_text(unsigned int number)
{
  return Wt::WString::fromUTF8(std::to_string(number));
}

Wt::WString Decimal_shortText(unsigned int number)
{
  return Wt::WString::fromUTF8(std::to_string(number).substr(0, 9));
}
