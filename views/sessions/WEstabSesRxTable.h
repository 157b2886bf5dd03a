// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_RX_TABLE_H_
#define VIEWS_SESSIONS_WESTAB_SES_RX_TABLE_H_

#include "Info.h"
#include "WEstabSesDeviceTable.h"

/// The receivers at which a user can begin a session of the chosen mode: those in service and free that allow
/// what user and session need.
class WEstabSesRxTable : public WEstabSesDeviceTable
{
public:
  explicit WEstabSesRxTable(Wt::WContainerWidget *parent = 0);

  /// True on failure.
  virtual bool readFromDatabase(Info_AccessMode mode, unsigned int userIndex);
  /// Takes all rows away.
  virtual void clearData();
};

#endif // VIEWS_SESSIONS_WESTAB_SES_RX_TABLE_H_
