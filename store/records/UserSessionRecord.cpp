// SPDX-License-Identifier: MIT
#include "UserSessionRecord.h"

#include "Db.h"
#include "RecordRows.h"
#include "ZelReq.h"

namespace
{

// "index" stands twice: the store takes it, and its log shows this very request.
constexpr char kWithoutUsers[] = "[\"index\",\"index\",\"rxIndex\",\"sessionStartTime\"]";

UserSessionRecord sessionOf(const RecordRows &rows, unsigned int row)
{
  UserSessionRecord session;
  session.index = rows.number(row, "index");
  session.rxIndex = rows.number(row, "rxIndex");
  session.userIndex = rows.number(row, "userIndex");
  session.startTime = rows.number(row, "sessionStartTime");
  return session;
}

std::optional<std::vector<UserSessionRecord>> read(const char *select)
{
  ZelClient_s *client = nullptr;
  if (Db_db.getZelClient(client))
    return std::nullopt;
  return RecordRows(ZelReq_userSessionRetrieve(client, select)).records(sessionOf);
}

} // namespace

std::optional<std::vector<UserSessionRecord>> UserSessionRecord::readAll()
{
  return read(nullptr);
}

std::optional<std::vector<UserSessionRecord>> UserSessionRecord::readWithoutUsers()
{
  return read(kWithoutUsers);
}
