// SPDX-License-Identifier: MIT
#ifndef VIEWS_CASCADE_WMANAGEDVIEWSWXMODETABLE_H_
#define VIEWS_CASCADE_WMANAGEDVIEWSWXMODETABLE_H_

#include "WSettingsTable.h"

class WEid;
class WManagementMode;
class WSwxCombinedMode;

/// Whether this switch is managed, by whom, and how it stands with the managers. Which rows there are
/// depends on the part that the switch plays when the table is made.
class WManagedViewSwxModeTable : public WSettingsTable
{
public:
  explicit WManagedViewSwxModeTable(Wt::WContainerWidget *parent = 0);

  bool isAllValid() override;
  bool writeToDatabase(std::vector<unsigned int> indexes, std::vector<std::string> &errors) override;

  WManagementMode *managementMode; ///< null unless the switch is the cascade's controller
  WSwxCombinedMode *combinedMode;  ///< null if it is

private:
  void addMode();
  void addMasterEid();
  void addManagers();

  const bool isController;
  const bool isBackup;
  WEid *masterEid;
};

#endif // VIEWS_CASCADE_WMANAGEDVIEWSWXMODETABLE_H_
