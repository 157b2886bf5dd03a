// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXATTRIBSTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXATTRIBSTABLE_H_

#include "WSettingsTable.h"

/// What switches are called, where they stand, and what else there is to say of them.
class WDevViewSwxAttribsTable : public WSettingsTable
{
public:
  explicit WDevViewSwxAttribsTable(Wt::WContainerWidget *parent = 0);

  /// Switches in conflict cannot be edited.
  void readFromDatabase(std::vector<unsigned int> indexes, bool force = false) override;

private:
  bool isEditable;
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXATTRIBSTABLE_H_
