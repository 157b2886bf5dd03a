// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_WESTAB_SES_USR_TABLE_H_
#define VIEWS_SESSIONS_WESTAB_SES_USR_TABLE_H_

#include "Info.h"
#include "WRecordTable.h"

/// The users who may have a session of the chosen mode.
class WEstabSesUsrTable : public WRecordTable
{
public:
  explicit WEstabSesUsrTable(Wt::WContainerWidget *parent = 0);

  virtual void readFromDatabase(Info_ConnectionMode mode);
  /// Takes all rows away.
  virtual void clearData();
};

#endif // VIEWS_SESSIONS_WESTAB_SES_USR_TABLE_H_
