// SPDX-License-Identifier: MIT
#ifndef VIEWS_CASCADE_WCASCADEVIEWINFOTABLE_H_
#define VIEWS_CASCADE_WCASCADEVIEWINFOTABLE_H_

#include "WSettingsTable.h"

/// The controller of the cascade and its peer, each with a group of rows.
class WCascadeViewInfoTable : public WSettingsTable
{
public:
  explicit WCascadeViewInfoTable(Wt::WContainerWidget *parent = 0);

  using WSettingsTable::readFromDatabase;
  void readFromDatabase(bool force) { WSettingsTable::readFromDatabase(Indexes(), force); }

  /// Whether the controller is another switch than this one.
  bool switchedRole;

private:
  void addSwitch();
  bool findController(Indexes &records);
};

#endif // VIEWS_CASCADE_WCASCADEVIEWINFOTABLE_H_
