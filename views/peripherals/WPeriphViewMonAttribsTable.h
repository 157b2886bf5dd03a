// SPDX-License-Identifier: MIT
#ifndef VIEWS_PERIPHERALS_WPERIPHVIEWMONATTRIBSTABLE_H_
#define VIEWS_PERIPHERALS_WPERIPHVIEWMONATTRIBSTABLE_H_

#include "WSettingsTable.h"

namespace Wt
{
class WText;
}

/// What stored monitors are called, and what their EDID blocks say of them.
class WPeriphViewMonAttribsTable : public WSettingsTable
{
public:
  explicit WPeriphViewMonAttribsTable(unsigned int, Wt::WContainerWidget *parent = 0);

  /// Reads nothing while there is an edit.
  void readFromDatabase(std::vector<unsigned int> indexes, bool force = false) override;

  WLineEditZel *nameField;
  WTextAreaZel *descriptionField;

private:
  std::vector<Wt::WText *> derived; ///< manufacturer, product code, type
};

#endif // VIEWS_PERIPHERALS_WPERIPHVIEWMONATTRIBSTABLE_H_
