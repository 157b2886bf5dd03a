// SPDX-License-Identifier: MIT
#include "NevoUtil.h"

#include <Wt/WMenuItem>
#include <Wt/WString>

void NevoUtil_indicateChange(Wt::WMenuItem *menuItem, bool changed)
{
  if (!menuItem)
    return;
  std::string label = menuItem->text().toUTF8();
  const bool isMarked = !label.empty() && label.back() == '*';
  if (changed == isMarked)
    return;
  if (changed)
    label += '*';
  else
    label.pop_back();
  menuItem->setText(Wt::WString::fromUTF8(label));
}
