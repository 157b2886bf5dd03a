// SPDX-License-Identifier: MIT
#include "UserRecord.h"

#include "Db.h"
#include "RecordRows.h"
#include "ZelReq.h"
#include "ZelRsp.h"

namespace
{

constexpr char kSelect[] = "[\"index\",\"name\",\"mgrName\",\"fullName\",\"role\"]";
constexpr char kWithAllowedMode[] = "[\"index\",\"name\",\"mgrName\",\"modeAllowed\"]";

UserRecord userOf(const RecordRows &rows, unsigned int row)
{
  const json_t *values = rows.row(row);
  UserRecord user;
  user.index = ZelRsp_userGetIndex(values);
  user.name = rows.text(row, "name");
  user.managerName = rows.text(row, "mgrName");
  user.fullName = rows.text(row, "fullName");
  user.role = ZelRsp_userGetRole(values);
  user.modeAllowed = ZelRsp_userGetModeAllowed(values);
  return user;
}

std::optional<std::vector<UserRecord>> read(const char *select)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows(ZelReq_userRetrieve(client, select)).records(userOf);
}

} // namespace

std::optional<std::vector<UserRecord>> UserRecord::readAll()
{
  return read(kSelect);
}

std::optional<std::vector<UserRecord>> UserRecord::readWithAllowedMode()
{
  return read(kWithAllowedMode);
}
