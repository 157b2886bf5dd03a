// SPDX-License-Identifier: MIT
#ifndef VIEWS_DEVICES_WDEVVIEWSWXNTPTABLE_H_
#define VIEWS_DEVICES_WDEVVIEWSWXNTPTABLE_H_

#include "WSettingsTable.h"

class WEnableDisable;
class WNtpStatus;

/// Where switches take the time from.
class WDevViewSwxNtpTable : public WSettingsTable
{
public:
  explicit WDevViewSwxNtpTable(Wt::WContainerWidget *parent = 0);

  /// Switches in conflict cannot be edited.
  void readFromDatabase(std::vector<unsigned int> indexes, bool force = false) override;
  /// After a Save the status is not known until it is read again.
  void clearStatus();

private:
  WEnableDisable *control;
  WNtpStatus *status;
  bool isEditable;
};

#endif // VIEWS_DEVICES_WDEVVIEWSWXNTPTABLE_H_
