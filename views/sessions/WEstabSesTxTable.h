// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_TX_TABLE_H_
#define VIEWS_SESSIONS_WESTAB_SES_TX_TABLE_H_

#include "Info.h"
#include "WEstabSesDeviceTable.h"

/// The transmitters that a user can reach from a receiver in a session of the chosen mode.
class WEstabSesTxTable : public WEstabSesDeviceTable
{
public:
  explicit WEstabSesTxTable(Wt::WContainerWidget *parent = 0);

  /// True on failure.
  virtual bool readFromDatabase(Info_ConnectionMode mode, unsigned int userIndex, unsigned int rxIndex);
  /// Takes all rows away.
  virtual void clearData();
};

#endif // VIEWS_SESSIONS_WESTAB_SES_TX_TABLE_H_
