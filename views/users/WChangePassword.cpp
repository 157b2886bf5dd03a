// SPDX-License-Identifier: MIT
#include "WChangePassword.h"

#include <iterator>

namespace
{

constexpr WComboBoxPlus::Triplet kChoices[] = {{"disabled", "[RSnnn]Disabled", 0},
                                               {"enabled", "[RSnnn]Enabled", 1}};

} // namespace

WChangePassword::WChangePassword(Wt::WContainerWidget *parent)
    : WComboBoxPlus(kChoices, static_cast<int>(std::size(kChoices)), parent), blankIncluded(false)
{
}

void WChangePassword::includeBlankItem(bool included)
{
  if (included && !blankIncluded)
    addItem("");
  else if (!included && blankIncluded)
    removeItem(count() - 1);
  blankIncluded = included;
}

void WChangePassword::showBlankItem()
{
  setCurrentIndex(count() - 1);
}
