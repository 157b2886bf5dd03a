// SPDX-License-Identifier: MIT
#ifndef WIDGETS_DECIMAL_H_
#define WIDGETS_DECIMAL_H_

#include <Wt/WString>

/// Numbers as the bound widgets show them.

Wt::WString Decimal_text(unsigned int number);
/// The first nine digits: all that a field shows of a number that it has read by itself.
Wt::WString Decimal_shortText(unsigned int number);

#endif // WIDGETS_DECIMAL_H_
