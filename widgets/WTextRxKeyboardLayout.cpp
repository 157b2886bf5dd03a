// SPDX-License-Identifier: MIT
#include "WTextRxKeyboardLayout.h"

#include "Db.h"

WTextRxKeyboardLayout::WTextRxKeyboardLayout(Wt::WContainerWidget *parent)
    : WTextDerived(&Db::getKeyboardLayoutFromRxIndex, parent)
{
}
