// SPDX-License-Identifier: MIT
#include "WMouseDelta.h"

#include <Wt/WIntValidator>

WMouseDelta::WMouseDelta(const char *resourceName, const char *parameterName, bool isIndexed,
                         Wt::WContainerWidget *parent)
    : WValidatedEdit<WLineEditUInt32Zel>(resourceName, parameterName, isIndexed,
                                         new Wt::WIntValidator(0, 127), 3, parent)
{
}
