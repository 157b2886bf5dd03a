// SPDX-License-Identifier: MIT
#include "WLineEditPlus.h"

WLineEditPlus::WLineEditPlus(Wt::WContainerWidget *parent) : WEditPlus<Wt::WLineEdit>(parent) {}

WLineEditPlus::WLineEditPlus(const Wt::WString &text, Wt::WContainerWidget *parent)
    : WEditPlus<Wt::WLineEdit>(text, parent)
{
}
