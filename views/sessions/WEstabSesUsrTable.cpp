// SPDX-License-Identifier: MIT
#include "WEstabSesUsrTable.h"

#include "Text.h"
#include "UserRecord.h"

namespace
{

bool admits(const UserRecord &user, Info_ConnectionMode mode)
{
  return !(user.modeAllowed == Info_AccessMode_Share && mode == Info_ConnectionMode_Private) &&
         !(user.modeAllowed == Info_AccessMode_Private && mode == Info_ConnectionMode_Share);
}

} // namespace

WEstabSesUsrTable::WEstabSesUsrTable(Wt::WContainerWidget *parent)
    : WRecordTable(178, 200, {{text("Username"), 150}}, parent)
{
  setEmptyText(text("No user may have such a session."));
}

void WEstabSesUsrTable::readFromDatabase(Info_ConnectionMode mode)
{
  clearData();
  for (const UserRecord &user : UserRecord::readWithAllowedMode().value_or(std::vector<UserRecord>()))
    if (admits(user, mode))
      addRecord(user.index, {user.shownName()});
}

void WEstabSesUsrTable::clearData()
{
  removeAllRecords();
}
