// SPDX-License-Identifier: MIT
#include "WManagementMode.h"

#include "Text.h"

namespace
{

enum Item { Unmanaged, Managed };

struct Mode {
  const char *word;
  Item item;
  const char *key; ///< of the text of the item "Managed"
};

constexpr Mode kModes[] = {
    {"non_managed", Unmanaged, "[RSnnn]Managed"},
    {"enrolling", Managed, "[RSnnn]Managed (enrolling)"},
    {"managed", Managed, "[RSnnn]Managed (exchanging certificates)"},
    {"verified", Managed, "[RSnnn]Managed (fully enrolled)"},
    {"unenrolling", Managed, "[RSnnn]Managed (unenrolling)"},
};

constexpr char kWayOut[] = "unenrolling";

} // namespace

WManagementMode::WManagementMode(const char *resourceName, const char *parameterName,
                                 Wt::WContainerWidget *parent)
    : Wt::WComboBox(parent), WWidgetZel(resourceName, parameterName, false)
{
  addItem(text("Unmanaged"));
  addItem(text("Managed"));
  changed().connect(this, &WManagementMode::contentChangedHandler);
}

bool WManagementMode::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors,
                                       bool force)
{
  if (keepsFocus(hasFocus()) || keepsEdit(force))
    return false;
  std::string word;
  const Agreement agreement = readCommon(indexes, word, errors);
  if (agreement != Agreeing)
    return endRead(agreement);
  Item item = Unmanaged;
  for (const Mode &mode : kModes) {
    if (word != mode.word)
      continue;
    item = mode.item;
    setItemText(Managed, Wt::WString::tr(mode.key));
  }
  setCurrentIndex(item);
  return endRead(agreement);
}

bool WManagementMode::writeToDatabase(std::vector<unsigned int> &, std::vector<std::string> &errors)
{
  const bool isLeaving = changedContent && currentIndex() == Unmanaged;
  changedContent = false;
  return isLeaving && writeOne(0, std::string(kWayOut), errors);
}

void WManagementMode::setZelParam(json_t *params)
{
  if (changedContent && currentIndex() == Unmanaged)
    addTo(params, std::string(kWayOut));
}

void WManagementMode::getZelParam(json_t *, std::vector<unsigned int> &, bool) {}

void WManagementMode::contentChangedHandler()
{
  endEdit();
}
