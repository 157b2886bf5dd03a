// SPDX-License-Identifier: MIT
#include "WKeyCode.h"

#include <Wt/WIntValidator>

WKeyCode::WKeyCode(const char *resourceName, const char *parameterName, bool isIndexed,
                   Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditUInt32Zel>(resourceName, parameterName, isIndexed,
                                         new Wt::WIntValidator(0, 255), 3, parent)
{
}
