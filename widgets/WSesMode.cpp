// SPDX-License-Identifier: MIT
#include "WSesMode.h"

#include "Info.h"

namespace
{

const WComboBoxPlus::Triplet choices[] = {
    {"share_mode", "[RSnnn]Shared session", Info_ConnectionMode_Share},
    {"private_mode", "[RSnnn]Private session", Info_ConnectionMode_Private}};

} // namespace

WSesMode::WSesMode(Wt::WContainerWidget *parent) : WComboBoxPlus(choices, 2, parent) {}

int WSesMode::getSelection()
{
  return currentIndex() == 0 ? Info_ConnectionMode_Share : Info_ConnectionMode_Private;
}
