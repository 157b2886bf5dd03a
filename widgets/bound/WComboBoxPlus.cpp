// SPDX-License-Identifier: MIT
#include "WComboBoxPlus.h"

#include <Wt/WString>
#include <algorithm>

WComboBoxPlus::WComboBoxPlus(const Triplet *choices, int count, Wt::WContainerWidget *parent)
    : Wt::WComboBox(parent), table(choices), tableCount(std::max(count, 0))
{
  for (int i = 0; i < tableCount; ++i)
    addItem(Wt::WString::tr(table[i].label));
}

std::string WComboBoxPlus::selection()
{
  return hasChoice() ? table[currentIndex()].storeValue : "";
}

int WComboBoxPlus::value()
{
  return hasChoice() ? table[currentIndex()].code : 0;
}

bool WComboBoxPlus::setCurrentIndexByValue(int code)
{
  const Triplet *const end = table + tableCount;
  const Triplet *const found = std::find_if(table, end, [=](const Triplet &row) { return row.code == code; });
  if (found == end)
    return true;
  setCurrentIndex(static_cast<int>(found - table));
  return false;
}

int WComboBoxPlus::indexOfStoreValue(const std::string &storeValue) const
{
  const Triplet *const end = table + tableCount;
  const Triplet *const found =
      std::find_if(table, end, [&](const Triplet &row) { return row.storeValue == storeValue; });
  return found == end ? -1 : static_cast<int>(found - table);
}
