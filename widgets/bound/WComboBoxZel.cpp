// SPDX-License-Identifier: MIT
#include "WComboBoxZel.h"

#include "EventLog.h"

#include <Wt/WString>

WComboBoxZel::WComboBoxZel(const char *resourceName, const char *parameterName, bool isIndexed,
                           const WComboBoxPlus::Triplet *table, int count, Wt::WContainerWidget *parent)
    : WComboBoxPlus(table, count, parent), WWidgetZel(resourceName, parameterName, isIndexed),
      blankItemPresent(false)
{
  changed().connect(this, &WComboBoxZel::contentChangedHandler);
}

bool WComboBoxZel::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                    bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return false;
  std::string storeValue;
  const Agreement agreement = readCommon(indexes, storeValue, errors);
  if (agreement != Unreadable)
    show(agreement, storeValue, "readFromDatabase");
  return endRead(agreement) || agreement == NoRecords;
}

bool WComboBoxZel::writeToDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  if (!changedContent || namesNoRecord(indexes))
    return false;
  bool failed = true;
  if (hasChoice()) {
    for (const unsigned int index : addressed(indexes))
      failed = writeOne(index, selection(), errors);
  }
  changedContent = false;
  return failed;
}

void WComboBoxZel::setZelParam(json_t *params)
{
  if (changedContent && hasChoice())
    addTo(params, selection());
}

void WComboBoxZel::getZelParam(json_t *response, std::vector<unsigned int> &indexes, bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return;
  std::string storeValue;
  const Agreement agreement = extractCommon(response, indexes, storeValue);
  show(agreement, storeValue, "getZelParam");
  endBulkRead(agreement);
}

void WComboBoxZel::contentChangedHandler()
{
  endEdit();
}

void WComboBoxZel::show(Agreement agreement, const std::string &storeValue, const char *function)
{
  if (agreement == NoRecords) {
    setCurrentIndex(0);
    return;
  }
  if (agreement != Agreeing) {
    showBlank();
    return;
  }
  removeBlank();
  const int index = indexOfStoreValue(storeValue);
  if (index < 0)
    EventLog_write(2, 7, function, "Unknown value for %s/%s: %s. Using default.", resource, param,
                   storeValue);
  setCurrentIndex(index < 0 ? 0 : index);
}

void WComboBoxZel::showBlank()
{
  if (!blankItemPresent)
    addItem("");
  blankItemPresent = true;
  setCurrentIndex(entryCount());
}

void WComboBoxZel::removeBlank()
{
  if (blankItemPresent)
    removeItem(count() - 1);
  blankItemPresent = false;
}
