// SPDX-License-Identifier: MIT
#include "WTarget.h"

#include <Wt/WString>

WTarget::WTarget(const char *resourceName, const char *parameterName, bool isIndexed,
                 Wt::WContainerWidget *parent)
    : Wt::WComboBox(parent), WWidgetZel(resourceName, parameterName, isIndexed), blankItemPresent(false)
{
  changed().connect(this, &WTarget::contentChangedHandler);
}

void WTarget::populateChoices(std::vector<TargetItem> &items)
{
  clear();
  blankItemPresent = false;
  for (const TargetItem &item : items) {
    if (!item.conflict)
      addItem(Wt::WString::fromUTF8(TargetItem_text(item.eid, item.name)));
  }
}

void WTarget::setCurrentChoiceByEid(std::string &eid)
{
  int index = 0;
  while (index < targetCount() && TargetItem_eidOf(itemText(index).toUTF8()) != eid)
    ++index;
  const bool isFound = index < targetCount();
  if (isFound && blankItemPresent)
    removeItem(count() - 1);
  else if (!isFound && !blankItemPresent)
    addItem("");
  blankItemPresent = !isFound;
  setCurrentIndex(index);
}

bool WTarget::readFromDatabase(std::vector<unsigned int> &, std::vector<std::string> &, bool)
{
  return true;
}

void WTarget::setZelParam(json_t *params)
{
  if (currentIndex() >= 0 && currentIndex() < targetCount())
    addTo(params, TargetItem_eidOf(currentText().toUTF8()));
}

void WTarget::getZelParam(json_t *, std::vector<unsigned int> &, bool) {}

void WTarget::contentChangedHandler()
{
  endEdit();
}
