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
    : WRecordTable(178, 200, {{text("Username"), Wt::AlignLeft, 150}}, parent)
{
  records->setEmptyText(text("No user may have such a session."));
}

void WEstabSesUsrTable::readFromDatabase(Info_ConnectionMode mode)
{
  const auto users = UserRecord::readWithAllowedMode();
  std::optional<ListRows> rows;
  if (users) {
    rows.emplace();
    for (const UserRecord &user : *users)
      if (admits(user, mode))
        rows->push_back({user.index, {user.shownName()}});
  }
  records->show(rows);
}

void WEstabSesUsrTable::clearData()
{
  records->clear();
}
