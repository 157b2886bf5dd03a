// SPDX-License-Identifier: MIT
#include "WEstabSesUsrTable.h"

#include "Db.h"
#include "Text.h"
#include "ZelReq.h"
#include "ZelRsp.h"
#include "ZelValue.h"

namespace
{

bool admits(json_t *user, Info_ConnectionMode mode)
{
  const Info_AccessMode allowed = ZelRsp_userGetModeAllowed(user);
  return !(allowed == Info_AccessMode_Share && mode == Info_ConnectionMode_Private) &&
         !(allowed == Info_AccessMode_Private && mode == Info_ConnectionMode_Share);
}

/// A user that an external manager owns has that manager's name only.
std::string nameOf(json_t *user)
{
  const char *name = ZelRsp_userGetName(user);
  if (!name || !*name)
    name = ZelRsp_userGetMgrName(user);
  return name ? name : "";
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
  ZelClient_s *client = 0;
  if (Db_db.getZelClient(client) != 0)
    return;
  const ZelResponse users(ZelReq_userRetrieve(client, "[\"index\",\"name\",\"mgrName\",\"modeAllowed\"]"));
  const int count = ZelRspUtil_numEntries(users.get());
  for (int row = 0; row < count; ++row) {
    json_t *user = ZelObj_getRow(users.get(), row);
    if (admits(user, mode))
      addRecord(ZelRsp_userGetIndex(user), {nameOf(user)});
  }
}

void WEstabSesUsrTable::clearData()
{
  removeAllRecords();
}
